// What the three calculator dialogs and their components share.
//
// TQORCalcFormBase is the dialog frame: the key panel with its speed buttons, the value and
// memory panels, Exit / Cancel / Copy / Paste, the keys every calculator has (digits, the four
// operators, brackets, equals, clearing, memory), the keyboard preview that turns typed
// characters and shortcut keys into button clicks, the clipboard, stay-on-top and placement.
// Keys are described by tables (name, caption or glyph, hint, engine call) and placed by
// layout tables, so a form is mostly data.
//
// TQORCalcComponent is the non-visual side: the published properties the three components
// have in common, the settings-store round trip driven by a table of keys, the glyph-change
// notices for calculator edits, and the run of one modal dialog.
#pragma once

#include "QORKITBaseControls.h"
#include "QORKITComponent.h"
#include "QORKITEditColors.h"
#include "QORKITGlyphs.h"
#include "QORKITQtEnums.h"
#include "QORKITStoreCtrl.h"
#include "QORKITTypes.h"
#include "QORKIT_RS_Calc.h"
#include "qorkit_widgets_export.h"

#include <QColor>
#include <QDialog>
#include <QIcon>
#include <QObject>
#include <QPointer>
#include <QString>
#include <QToolButton>

#include <cstdint>
#include <functional>
#include <initializer_list>
#include <memory>
#include <span>
#include <string>
#include <type_traits>
#include <vector>

class QListView;
class QSpinBox;

namespace qorkit {

class TQORTapeModel;

// Fixed version text of the calculator components.
inline constexpr char QORCalcVersion[] = "qorkit calculators 0.1.0";

using TQORTextFn = std::string (*)();

// How a key looks: its object name, a fixed caption or a translatable one, or a glyph
// (glyph -1: none), and its hint (none when null).
struct QORKIT_WIDGETS_EXPORT TQORKeyLook {
    const char* Name;
    const char* Text;
    TQORTextFn Caption;
    int Glyph;
    TQORTextFn Hint;
};

// A key of a form, named by the member that holds it (`&TQORCalcForm::PercentBtn`). A table
// of a form's keys is typed by the form, so its rows may name the form's keys and those of its
// base classes; a misspelled key, or a key of another form, does not compile.
template<class Form> using TQORKeyMember = QToolButton* Form::*;

// One key of a form: the member that holds it, its look and the engine call of a click.
template<class Form, class Engine> struct TQORKeyDef {
    TQORKeyMember<Form> Member;
    TQORKeyLook Look;
    void (*Click)(Engine& engine);
};

// A key's cell in a form's key grid: column, row and width in keys.
template<class Form> struct TQORKeyPlace {
    TQORKeyMember<Form> Key;
    int Col;
    int Row;
    int Span = 1;
};

// A typed character and the key(s) it clicks.
template<class Form> struct TQORCharKey {
    char Ch;
    TQORKeyMember<Form> Key;
    TQORKeyMember<Form> Then = nullptr;
};

// A shortcut key (with exactly these modifiers) and what it does: a key click, or a method of
// the form.
class TQORCalcFormBase;
template<class Form> struct TQORKeyDownDef {
    int Key;
    Qt::KeyboardModifiers Modifiers;
    bool Keypad;
    TQORKeyMember<Form> Button;
    void (TQORCalcFormBase::*Action)();
};

// Geometry of a form: key size and the key grid's size in keys.
struct QORKIT_WIDGETS_EXPORT TQORFormGeometry {
    int KeyWidth;
    int KeyHeight;
    int Columns;
    int Rows;
};

class QORKIT_WIDGETS_EXPORT TQORCalcFormBase : public QDialog {
    Q_OBJECT

public:
    ~TQORCalcFormBase() override;

    TQORBasePanel* KeyPanel = nullptr;
    TQORBasePanel* ValueDisplay = nullptr;
    TQORBasePanel* MemoryDisplay = nullptr;
    QToolButton* ZeroBtn = nullptr;
    QToolButton* OneBtn = nullptr;
    QToolButton* TwoBtn = nullptr;
    QToolButton* ThreeBtn = nullptr;
    QToolButton* FourBtn = nullptr;
    QToolButton* FiveBtn = nullptr;
    QToolButton* SixBtn = nullptr;
    QToolButton* SevenBtn = nullptr;
    QToolButton* EightBtn = nullptr;
    QToolButton* NineBtn = nullptr;
    QToolButton* AddBtn = nullptr;
    QToolButton* SubtractBtn = nullptr;
    QToolButton* MultiplyBtn = nullptr;
    QToolButton* DivideBtn = nullptr;
    QToolButton* EqualsBtn = nullptr;
    QToolButton* LeftBracketBtn = nullptr;
    QToolButton* RightBracketBtn = nullptr;
    QToolButton* AllClearBtn = nullptr;
    QToolButton* ClearBtn = nullptr;
    QToolButton* BackSpaceBtn = nullptr;
    QToolButton* MemoryClearBtn = nullptr;
    QToolButton* MemoryAddBtn = nullptr;
    QToolButton* MemorySubtractBtn = nullptr;
    QToolButton* MemoryRecallBtn = nullptr;
    QToolButton* ExitBtn = nullptr;
    QToolButton* CancelBtn = nullptr;
    QToolButton* CopyBtn = nullptr;
    QToolButton* PasteBtn = nullptr;

    // Set by Cancel (and Escape), cleared by Exit; closing by the window's own close box
    // leaves it as it is, so that transfers the value.
    bool GetCancelled() const { return cancelled_; }
    void SetCancelled(bool value) { cancelled_ = value; }

    void SetExitHint(const QString& hint);
    void SetCalcFlat(bool flat);
    bool GetCalcFlat() const { return flat_; }
    void SetKeyColor(const QColor& color);
    // A font description (QFont::toString) or a bare family name; empty keeps the font.
    void ApplyDispFont(const QString& description);
    // Family of both display panels; an empty name keeps the present one.
    void SetDispFontName(const QString& family);
    // Shows `text` in a display panel, fitted to it: text too wide for the panel is broken
    // before its last 32 digits (a 64-bit binary value reads as two lines of 32 bits) and set
    // in the largest smaller size of the display font in which every line fits.
    void ShowFitted(TQORBasePanel* panel, const QString& text);
    // The text a panel shows, on one line as the engine gave it.
    QString DisplayText(const TQORBasePanel* panel) const;
    bool GetStayOnTop() const { return stayOnTop_; }
    void SetStayOnTop(bool value);
    // A non-null icon replaces the glyph of Exit, Copy, Paste, Cancel.
    void SetGlyphs(const QIcon& close, const QIcon& copy, const QIcon& paste, const QIcon& cancel);
    // Explicit placement moves the form to left/top (-1 keeps that coordinate); otherwise
    // `position` decides when the form is shown.
    void Place(TQORFormPosition position);
    void MoveTo(int left, int top);

    // The paper tape beside the keys. Off by default, and then the form keeps its size; on, the
    // form grows to the right by the tape's width (TapeWidth) and shows the engine's tape,
    // scrolled to the newest line. The view's context menu copies the tape (text and CSV). The
    // view is made when the tape is first shown; until then TapeView is null.
    static constexpr int TapeWidth = 170;
    QListView* TapeView = nullptr;
    bool GetShowTape() const { return showTape_; }
    void SetShowTape(bool value);
    // The engine's tape as a model; null on a form without one.
    TQORTapeModel* GetTapeModel() const { return tapeModel_; }

    // Help context of the form (0: none), from the process-wide help-context settings.
    int GetHelpContext() const { return helpContext_; }
    void SetHelpContext(int value) { helpContext_ = value; }

    // Sets a text key's caption, in a smaller font when the form's font would not fit it
    // into the key (see FitKeyCaption).
    void SetKeyText(QToolButton* key, const QString& text);
    // Tab order in reading order: the controls and keys row by row, left to right, the tape
    // last. Done when the form is shown; keys are reached with Tab and pressed with Space.
    void UpdateTabOrder();
    // The engine's last error text.
    virtual std::string GetLastError() const = 0;

public Q_SLOTS:
    // Texts of every key and the caption from the resource strings (also done on
    // QEvent::LanguageChange while the form exists; a caption the host set is kept).
    virtual void UpdateLanguage();
    void CopyClick();
    void PasteClick();
    void ExitClick();
    void CancelClick();
    // Delete: clears the display.
    virtual void DeleteKey() = 0;
    // The numeric pad's decimal key.
    virtual void KeypadDecimal() { }

protected:
    TQORCalcFormBase(QWidget* parent, TQORFormGeometry geometry, QFont keyFont);

    // Makes the keys of a table and puts each in its member of `form`, the form itself (which
    // ties the table to the form's class); a click calls the engine.
    template<class Form, class Engine>
    void AddKeys(
        Form& form,
        std::span<const TQORKeyDef<std::type_identity_t<Form>, std::type_identity_t<Engine>>> defs,
        Engine& engine)
    {
        for (const auto& def : defs) {
            QToolButton* button = NewKey(def.Look);
            form.*(def.Member) = button;
            if (def.Click != nullptr) {
                connect(button, &QToolButton::clicked, this,
                        [click = def.Click, &engine] { click(engine); });
            }
        }
    }

    // Makes the keys every calculator has (QORCommonKeys), calling `engine`.
    template<class Engine> void AddCommonKeys(Engine& engine);

    QToolButton* NewKey(const TQORKeyLook& look);
    // Gives a text key the key panel's font, or the largest smaller size of it in which the
    // caption fits between the key's frame: keys keep their size whatever the caption, the
    // language, the font or the screen scale.
    void FitKeyCaption(QToolButton* key) const;
    void FitKeyCaptions() const;

    // A control of the key panel that is not a key (the decimal-places spin edit) and its cell.
    struct TGridCell {
        QWidget* Widget;
        int Col;
        int Row;
        int Span;
    };
    // Lays the keys of `places` and the `more` controls out in the key panel's grid, each of
    // the fixed size of its cells, and sizes the panel; keys missing from `places` are hidden.
    // `form` is the form itself: it ties the table to the form's class.
    template<class Form>
    void PlaceKeys(const Form& form,
                   std::span<const TQORKeyPlace<std::type_identity_t<Form>>> places, int rows,
                   std::initializer_list<TGridCell> more = {})
    {
        std::vector<TGridCell> cells(more);
        for (const auto& place : places)
            cells.push_back({form.*(place.Key), place.Col, place.Row, place.Span});
        LayOutGrid(cells, rows);
    }
    // Adds a table of typed characters (searched in the order added, after the digits) and a
    // table of shortcut keys; `form` is the form itself, as for PlaceKeys. The keys are looked
    // up when a key is pressed, so a table may be added before its keys are made.
    template<class Form>
    void AddCharKeys(const Form&, std::span<const TQORCharKey<std::type_identity_t<Form>>> table)
    {
        for (const auto& row : table)
            charKeys_.push_back({row.Ch, AsFormKey(row.Key), AsFormKey(row.Then)});
    }
    template<class Form>
    void AddKeyDowns(const Form&, std::span<const TQORKeyDownDef<std::type_identity_t<Form>>> table)
    {
        for (const auto& row : table)
            keyDowns_.push_back(
                {row.Key, row.Modifiers, row.Keypad, AsFormKey(row.Button), row.Action});
    }
    // The float calculators' frame: value panel at the top, the key grid, the memory panel
    // below, both panels as wide as the form less the margins; `extraHeight` is added.
    void LayoutPanels(int rows, int extraHeight = 0);
    // Whether the keys are the programmer's (their accessible texts differ: "EBtn" is a digit).
    virtual bool ProgrammersKeys() const { return false; }
    // Shows `text` on a display panel; a change is announced to assistive technology.
    void SetPanelText(TQORBasePanel* panel, const QString& text, bool fitted = false);
    // The form's size without the tape (the tape adds its width when shown).
    void SetFormSize(int width, int height);
    // Puts a child of the form, or a key of the key panel, at `place` in its parent, given as
    // laid out left to right; a parent that reads right to left shows it mirrored (the tape on
    // the left of the form, the first column of keys on the right of the panel).
    void PlaceChild(QWidget* child, const QRect& place);
    static void PlaceMirrored(QWidget* child, const QRect& place);
    // Gives the form its tape (made after the engine's own handlers are set); the view is made
    // by the first SetShowTape(true).
    void SetTapeModel(TQORTapeModel* model);
    // Sets up the keyboard preview on the form and every child it has by now.
    void InstallKeyPreview();

    // Whether a handled character stops there (otherwise it also reaches the focused control).
    virtual bool SwallowChars() const { return true; }
    // Whether letters are folded to upper case before the table is searched.
    virtual bool FoldCase() const { return true; }
    // A character the table did not handle (the float forms take the decimal separator).
    virtual bool OtherChar(char ch);
    virtual void PasteText(const std::string& text) = 0;

    bool eventFilter(QObject* watched, QEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void changeEvent(QEvent* event) override;

    const TQORFormGeometry geometry_;

private:
    bool PreviewKey(QKeyEvent* event);
    bool PreviewChar(QKeyEvent* event, char ch);
    void LayOutGrid(const std::vector<TGridCell>& cells, int rows);
    void MakeTapeView();
    void MirrorChildren(); // every placed child where its left-to-right place says

    // A key member of a form derived from this class, kept as a member of this class: it is
    // applied to this form only, which is of the class the member was taken from.
    template<class Form> static TQORKeyMember<TQORCalcFormBase> AsFormKey(TQORKeyMember<Form> key)
    {
        return static_cast<TQORKeyMember<TQORCalcFormBase>>(key);
    }
    void Click(TQORKeyMember<TQORCalcFormBase> key);
    void ApplyWindowFlags();

    void SetDisplayFont(const QFont& font);

    struct KeyText {
        QToolButton* Button;
        TQORKeyLook Look;
    };
    std::vector<KeyText> keyTexts_;
    // A key's caption, hint and accessible texts in the current language.
    void ApplyKeyTexts(const KeyText& key) const;
    std::vector<TQORCharKey<TQORCalcFormBase>> charKeys_;
    std::vector<TQORKeyDownDef<TQORCalcFormBase>> keyDowns_;
    QString defaultTitle_; // the caption UpdateLanguage gave
    QFont displayFont_; // of both panels, before any fitting
    std::vector<std::pair<TQORBasePanel*, QString>> fittedTexts_;
    std::vector<std::pair<QWidget*, QRect>> places_; // widgets placed by PlaceChild
    TQORTapeModel* tapeModel_ = nullptr;
    int formWidth_ = 0;
    int formHeight_ = 0;
    bool showTape_ = false;
    bool cancelled_ = false;
    bool flat_ = false;
    bool stayOnTop_ = false;
    bool forwarding_ = false;
    TQORFormPosition position_ = poScreenCenter;
    int explicitLeft_ = -1;
    int explicitTop_ = -1;
    bool placed_ = false;
    int helpContext_ = 0;
    // Keys have their size once the grid has laid them out; captions are fitted from then on.
    bool keysLaidOut_ = false;
    // Set by the first UpdateLanguage (every form calls it once its keys are made): keys made
    // later take their language texts at once.
    bool languageApplied_ = false;
};

// The keys every calculator has; Engine is the floating-point or the programmer's engine.
// EnterDigit(engine, digit) is provided next to each engine's form.

template<class Engine>
inline constexpr TQORKeyDef<TQORCalcFormBase, Engine> QORCommonKeys[] = {
    {&TQORCalcFormBase::ZeroBtn,
     {"ZeroBtn", "0", nullptr, -1, nullptr},
     [](Engine& e) { EnterDigit(e, 0); }},
    {&TQORCalcFormBase::OneBtn,
     {"OneBtn", "1", nullptr, -1, nullptr},
     [](Engine& e) { EnterDigit(e, 1); }},
    {&TQORCalcFormBase::TwoBtn,
     {"TwoBtn", "2", nullptr, -1, nullptr},
     [](Engine& e) { EnterDigit(e, 2); }},
    {&TQORCalcFormBase::ThreeBtn,
     {"ThreeBtn", "3", nullptr, -1, nullptr},
     [](Engine& e) { EnterDigit(e, 3); }},
    {&TQORCalcFormBase::FourBtn,
     {"FourBtn", "4", nullptr, -1, nullptr},
     [](Engine& e) { EnterDigit(e, 4); }},
    {&TQORCalcFormBase::FiveBtn,
     {"FiveBtn", "5", nullptr, -1, nullptr},
     [](Engine& e) { EnterDigit(e, 5); }},
    {&TQORCalcFormBase::SixBtn,
     {"SixBtn", "6", nullptr, -1, nullptr},
     [](Engine& e) { EnterDigit(e, 6); }},
    {&TQORCalcFormBase::SevenBtn,
     {"SevenBtn", "7", nullptr, -1, nullptr},
     [](Engine& e) { EnterDigit(e, 7); }},
    {&TQORCalcFormBase::EightBtn,
     {"EightBtn", "8", nullptr, -1, nullptr},
     [](Engine& e) { EnterDigit(e, 8); }},
    {&TQORCalcFormBase::NineBtn,
     {"NineBtn", "9", nullptr, -1, nullptr},
     [](Engine& e) { EnterDigit(e, 9); }},
    {&TQORCalcFormBase::AddBtn,
     {"AddBtn", nullptr, nullptr, glAdd, rsAddHint},
     [](Engine& e) { e.DoAdd(); }},
    {&TQORCalcFormBase::SubtractBtn,
     {"SubtractBtn", nullptr, nullptr, glSubtract, rsSubtractHint},
     [](Engine& e) { e.DoSubtract(); }},
    {&TQORCalcFormBase::MultiplyBtn,
     {"MultiplyBtn", nullptr, nullptr, glMultiply, rsMultiplyHint},
     [](Engine& e) { e.DoMultiply(); }},
    {&TQORCalcFormBase::DivideBtn,
     {"DivideBtn", nullptr, nullptr, glDivide, rsDivideHint},
     [](Engine& e) { e.DoDivide(); }},
    {&TQORCalcFormBase::EqualsBtn,
     {"EqualsBtn", "=", nullptr, -1, nullptr},
     [](Engine& e) { e.DoEquals(); }},
    {&TQORCalcFormBase::LeftBracketBtn,
     {"LeftBracketBtn", "(", nullptr, -1, nullptr},
     [](Engine& e) { e.InputLeftBracket(); }},
    {&TQORCalcFormBase::RightBracketBtn,
     {"RightBracketBtn", ")", nullptr, -1, nullptr},
     [](Engine& e) { e.InputRightBracket(); }},
    {&TQORCalcFormBase::AllClearBtn,
     {"AllClearBtn", nullptr, rsACKey, -1, rsACHint},
     [](Engine& e) { e.AllClear(); }},
    {&TQORCalcFormBase::BackSpaceBtn,
     {"BackSpaceBtn", nullptr, nullptr, glBackSpace, rsBackSpaceHint},
     [](Engine& e) { e.InputBackspace(); }},
    {&TQORCalcFormBase::MemoryClearBtn,
     {"MemoryClearBtn", nullptr, rsMCKey, -1, rsMCHint},
     [](Engine& e) { e.MemoryClear(); }},
    {&TQORCalcFormBase::MemoryAddBtn,
     {"MemoryAddBtn", nullptr, rsMAddKey, -1, rsMAddHint},
     [](Engine& e) { e.MemoryAdd(); }},
    {&TQORCalcFormBase::MemorySubtractBtn,
     {"MemorySubtractBtn", nullptr, rsMSubtractKey, -1, rsMSubtractHint},
     [](Engine& e) { e.MemorySubtract(); }},
    {&TQORCalcFormBase::MemoryRecallBtn,
     {"MemoryRecallBtn", nullptr, rsMRKey, -1, rsMRHint},
     [](Engine& e) { e.MemoryRecall(); }},
};

template<class Engine> void TQORCalcFormBase::AddCommonKeys(Engine& engine)
{
    AddKeys<TQORCalcFormBase, Engine>(*this, QORCommonKeys<Engine>, engine);
}

// ---- Components ------------------------------------------------------------------------------

// A control that shows a calculator component's edit glyph hears of glyph changes through
// this (registered with AddToNotifyGlyphChanges).
class QORKIT_WIDGETS_EXPORT IQORGlyphClient {
public:
    virtual ~IQORGlyphClient() = default;
    virtual void GlyphChanged(QObject* calculator) = 0;
};

// A settings key and the property it keeps.
struct QORKIT_WIDGETS_EXPORT TQORStoreKey {
    const char* Key;
    const char* Property;
};

class QORKIT_WIDGETS_EXPORT TQORCalcComponent : public QObject, public IQORNotifyClient {
    Q_OBJECT
    Q_PROPERTY(TQORUICtrl* UICtrl READ GetUICtrl WRITE SetUICtrl NOTIFY uiCtrlChanged)
    Q_PROPERTY(TQOREditColorSet* ColorSet READ GetColorSet)
    Q_PROPERTY(
        TQORStoreCtrl* StoreCtrl READ GetStoreCtrl WRITE SetStoreCtrl NOTIFY storeCtrlChanged)
    Q_PROPERTY(
        QString StoreSection READ GetStoreSection WRITE SetStoreSection NOTIFY storeSectionChanged)
    Q_PROPERTY(bool Precedence READ GetPrecedence WRITE SetPrecedence NOTIFY precedenceChanged)
    Q_PROPERTY(bool PrefixFunctions READ GetPrefixFunctions WRITE SetPrefixFunctions NOTIFY
                   prefixFunctionsChanged)
    Q_PROPERTY(bool Flat READ GetFlat WRITE SetFlat NOTIFY flatChanged)
    Q_PROPERTY(QString DispFont READ GetDispFont WRITE SetDispFont NOTIFY dispFontChanged)
    Q_PROPERTY(bool LoadMemoryAtStart READ GetLoadMemoryAtStart WRITE SetLoadMemoryAtStart NOTIFY
                   loadMemoryAtStartChanged)
    Q_PROPERTY(QString Title READ GetTitle WRITE SetTitle NOTIFY titleChanged)
    Q_PROPERTY(bool HiColorOnly READ GetHiColorOnly WRITE SetHiColorOnly NOTIFY hiColorOnlyChanged)
    Q_PROPERTY(QIcon CalcEditGlyph READ GetCalcEditGlyph WRITE SetCalcEditGlyph NOTIFY
                   calcEditGlyphChanged)
    Q_PROPERTY(QIcon CloseGlyph READ GetCloseGlyph WRITE SetCloseGlyph NOTIFY closeGlyphChanged)
    Q_PROPERTY(QIcon CancelGlyph READ GetCancelGlyph WRITE SetCancelGlyph NOTIFY cancelGlyphChanged)
    Q_PROPERTY(QIcon CopyGlyph READ GetCopyGlyph WRITE SetCopyGlyph NOTIFY copyGlyphChanged)
    Q_PROPERTY(QIcon PasteGlyph READ GetPasteGlyph WRITE SetPasteGlyph NOTIFY pasteGlyphChanged)
    Q_PROPERTY(QColor ColorBackground READ GetColorBackground WRITE SetColorBackground NOTIFY
                   colorBackgroundChanged)
    Q_PROPERTY(QString ExitHint READ GetExitHint WRITE SetExitHint NOTIFY exitHintChanged)
    Q_PROPERTY(
        qorkit::TQORFormPosition Position READ GetPosition WRITE SetPosition NOTIFY positionChanged)
    Q_PROPERTY(bool StayOnTop READ GetStayOnTop WRITE SetStayOnTop NOTIFY stayOnTopChanged)
    Q_PROPERTY(QString Version READ GetVersion WRITE SetVersion NOTIFY versionChanged STORED false)
    Q_PROPERTY(qorkit::TQORRegIniType RegIni READ GetRegIni WRITE SetRegIni NOTIFY regIniChanged
                   STORED false)
    Q_PROPERTY(bool FlatSpin READ GetFlatSpin WRITE SetFlatSpin NOTIFY flatSpinChanged STORED false)
    Q_PROPERTY(bool ShowTape READ GetShowTape WRITE SetShowTape NOTIFY showTapeChanged)
    Q_PROPERTY(QString LastError READ GetLastError STORED false)

public:
    ~TQORCalcComponent() override;

    TQORUICtrl* GetUICtrl() const { return uiCtrl_.data(); }
    void SetUICtrl(TQORUICtrl* value);
    TQOREditColorSet* GetColorSet() const { return colorSet_; }
    TQORStoreCtrl* GetStoreCtrl() const { return storeCtrl_.data(); }
    void SetStoreCtrl(TQORStoreCtrl* value);
    QString GetStoreSection() const { return storeSection_; }
    void SetStoreSection(const QString& value)
    {
        Store(storeSection_, value, &TQORCalcComponent::storeSectionChanged);
    }
    bool GetPrecedence() const { return precedence_; }
    void SetPrecedence(bool value)
    {
        Store(precedence_, value, &TQORCalcComponent::precedenceChanged);
    }
    bool GetPrefixFunctions() const { return prefixFunctions_; }
    void SetPrefixFunctions(bool value)
    {
        Store(prefixFunctions_, value, &TQORCalcComponent::prefixFunctionsChanged);
    }
    bool GetFlat() const { return flat_; }
    void SetFlat(bool value) { Store(flat_, value, &TQORCalcComponent::flatChanged); }
    QString GetDispFont() const { return dispFont_; }
    void SetDispFont(const QString& value)
    {
        Store(dispFont_, value, &TQORCalcComponent::dispFontChanged);
    }
    bool GetLoadMemoryAtStart() const { return loadMemoryAtStart_; }
    void SetLoadMemoryAtStart(bool value)
    {
        Store(loadMemoryAtStart_, value, &TQORCalcComponent::loadMemoryAtStartChanged);
    }
    QString GetTitle() const { return title_; }
    void SetTitle(const QString& value) { Store(title_, value, &TQORCalcComponent::titleChanged); }
    bool GetHiColorOnly() const { return hiColorOnly_; }
    void SetHiColorOnly(bool value);
    QIcon GetCalcEditGlyph() const { return calcEditGlyph_; }
    void SetCalcEditGlyph(const QIcon& value);
    QIcon GetCloseGlyph() const { return closeGlyph_; }
    void SetCloseGlyph(const QIcon& value);
    QIcon GetCancelGlyph() const { return cancelGlyph_; }
    void SetCancelGlyph(const QIcon& value);
    QIcon GetCopyGlyph() const { return copyGlyph_; }
    void SetCopyGlyph(const QIcon& value);
    QIcon GetPasteGlyph() const { return pasteGlyph_; }
    void SetPasteGlyph(const QIcon& value);
    // Invalid: the style's window colour.
    QColor GetColorBackground() const { return colorBackground_; }
    void SetColorBackground(const QColor& value)
    {
        Store(colorBackground_, value, &TQORCalcComponent::colorBackgroundChanged);
    }
    QString GetExitHint() const { return exitHint_; }
    void SetExitHint(const QString& value)
    {
        Store(exitHint_, value, &TQORCalcComponent::exitHintChanged);
    }
    TQORFormPosition GetPosition() const { return position_; }
    void SetPosition(TQORFormPosition value);
    bool GetStayOnTop() const { return stayOnTop_; }
    void SetStayOnTop(bool value)
    {
        Store(stayOnTop_, value, &TQORCalcComponent::stayOnTopChanged);
    }
    // Whether the dialog opens with its paper tape beside the keys (off: the usual size).
    bool GetShowTape() const { return showTape_; }
    void SetShowTape(bool value);
    // The fixed version text; writes are ignored (versionChanged is never emitted).
    QString GetVersion() const { return QString::fromLatin1(QORCalcVersion); }
    void SetVersion(const QString&) { }
    // The kind of the settings store (ritNone without one); setting it changes the store's.
    TQORRegIniType GetRegIni() const;
    void SetRegIni(TQORRegIniType value);
    bool GetFlatSpin() const { return flatSpin_; }
    void SetFlatSpin(bool value) { Store(flatSpin_, value, &TQORCalcComponent::flatSpinChanged); }
    // The engine's error text after the last run ("" when it ended without error).
    QString GetLastError() const { return lastError_; }
    // The display text after the last accepted run.
    QString GetDisplayText() const { return displayText_; }

    // Reads / writes the stored properties through StoreCtrl in StoreSection; nothing happens
    // without a store. The memory is read only when "Use Memory" is on.
    void LoadFromStore();
    void SaveToStore();

    void AddToNotifyGlyphChanges(QObject* client);
    void RemoveFromNotifyGlyphChanges(QObject* client);
    // Tells every registered client (and GlyphChanged listeners) that a glyph changed.
    void NotifyGlyphChange();

    void Notification(QObject* component, TQOROperation operation) override;

Q_SIGNALS:
    void GlyphChanged();
    void uiCtrlChanged();
    void storeCtrlChanged();
    void storeSectionChanged();
    void precedenceChanged();
    void prefixFunctionsChanged();
    void flatChanged();
    void dispFontChanged();
    void loadMemoryAtStartChanged();
    void titleChanged();
    void hiColorOnlyChanged();
    void calcEditGlyphChanged();
    void closeGlyphChanged();
    void cancelGlyphChanged();
    void copyGlyphChanged();
    void pasteGlyphChanged();
    void colorBackgroundChanged();
    void exitHintChanged();
    void positionChanged();
    void stayOnTopChanged();
    void versionChanged();
    void regIniChanged();
    void flatSpinChanged();
    // OnStartCalculator: the form is about to be shown.
    void startCalculator(qorkit::TQORCalcFormBase* form);
    void showTapeChanged(bool showTape);

protected:
    explicit TQORCalcComponent(QObject* owner);

    // Stores a property's value and emits its change signal when that changed it.
    template<class T, class C> void Store(T& field, const T& value, void (C::*signal)())
    {
        if (AssignChanged(field, value))
            (static_cast<C*>(this)->*signal)();
    }
    // The window the dialog opens over: the owner's window when the owner (or an owner of it)
    // is a widget, else the application's active window.
    QWidget* OwnerWindow() const;

    // Runs the dialog once: placement, caption, look, then the component's own set-up,
    // OnStartCalculator, the modal loop and the read-back when accepted.
    bool RunDialog();
    virtual std::unique_ptr<TQORCalcFormBase> CreateForm() = 0;
    virtual void SetUpForm(TQORCalcFormBase& form) = 0;
    virtual void StartCalculator(TQORCalcFormBase& form) = 0;
    virtual void ReadBack(TQORCalcFormBase& form) = 0;
    virtual std::span<const TQORStoreKey> StoreKeys() const = 0;
    virtual void ReadMemory(TQORStoreCtrl& store, const QString& key) = 0;
    virtual void WriteMemory(TQORStoreCtrl& store, const QString& key) = 0;

    bool usePosition_ = false;
    int positionLeft_ = 0;
    int positionTop_ = 0;
    QString lastError_;
    QString displayText_;

private:
    void SetGlyph(QIcon& field, const QIcon& value, void (TQORCalcComponent::*signal)());
    void TransferStore(bool save);

    QPointer<TQORUICtrl> uiCtrl_;
    TQOREditColorSet* colorSet_;
    QPointer<TQORStoreCtrl> storeCtrl_;
    QString storeSection_ = QString::fromLatin1(QORDefaultStoreSection);
    bool precedence_ = true;
    bool prefixFunctions_ = false;
    bool flat_ = false;
    QString dispFont_;
    bool loadMemoryAtStart_ = true;
    QString title_;
    bool hiColorOnly_ = false;
    QIcon calcEditGlyph_;
    QIcon closeGlyph_;
    QIcon cancelGlyph_;
    QIcon copyGlyph_;
    QIcon pasteGlyph_;
    QColor colorBackground_;
    QString exitHint_;
    TQORFormPosition position_ = poScreenCenter;
    bool showTape_ = false;
    bool stayOnTop_ = false;
    bool flatSpin_ = false;
    std::vector<QPointer<QObject>> glyphClients_;
};

// Execute / ExecutePos and the three events of a component whose form is Form.
template<class Component, class Form, class Base = TQORCalcComponent>
class TQORCalcComponentT : public Base {
public:
    using TFormEvent = std::function<void(Component* sender, Form* form)>;
    using TExecuteEvent = std::function<bool(Component* sender)>;
    using TExecutePosEvent
        = std::function<bool(Component* sender, std::int32_t left, std::int32_t top)>;

    // Shows the dialog; true when the user accepted. OnExecute, when assigned, replaces it (a
    // replacement returns a result, so it has no signal; OnStartCalculator has one).
    bool Execute()
    {
        if (onExecute_)
            return onExecute_(static_cast<Component*>(this));
        return this->RunDialog();
    }
    // The same with the form's left and top given; OnExecutePos, when assigned, replaces it.
    bool ExecutePos(std::int32_t left, std::int32_t top)
    {
        if (onExecutePos_)
            return onExecutePos_(static_cast<Component*>(this), left, top);
        this->usePosition_ = true;
        this->positionLeft_ = left;
        this->positionTop_ = top;
        const bool result = Execute();
        this->usePosition_ = false;
        return result;
    }

    const TFormEvent& GetOnStartCalculator() const { return onStartCalculator_; }
    void SetOnStartCalculator(TFormEvent e) { onStartCalculator_ = std::move(e); }
    const TExecuteEvent& GetOnExecute() const { return onExecute_; }
    void SetOnExecute(TExecuteEvent e) { onExecute_ = std::move(e); }
    const TExecutePosEvent& GetOnExecutePos() const { return onExecutePos_; }
    void SetOnExecutePos(TExecutePosEvent e) { onExecutePos_ = std::move(e); }

protected:
    using Base::Base;

    void StartCalculator(TQORCalcFormBase& form) override
    {
        if (onStartCalculator_)
            onStartCalculator_(static_cast<Component*>(this), static_cast<Form*>(&form));
        Q_EMIT this->startCalculator(&form);
    }

private:
    TFormEvent onStartCalculator_;
    TExecuteEvent onExecute_;
    TExecutePosEvent onExecutePos_;
};

// The window a dialog opened for `parent` belongs to: `parent`'s window, else the application's
// active window (null when there is none).
QORKIT_WIDGETS_EXPORT QWidget* QORHostWindow(QWidget* parent);

// Keeps the process-wide display font for the life of one free-function dialog, replaced by
// `font` when that is not empty.
class QORKIT_WIDGETS_EXPORT TQORDispFontScope {
public:
    explicit TQORDispFontScope(const std::string& font);
    ~TQORDispFontScope();
    TQORDispFontScope(const TQORDispFontScope&) = delete;
    TQORDispFontScope& operator=(const TQORDispFontScope&) = delete;

private:
    std::string saved_;
};

} // namespace qorkit
