#include "QORKITCalcFormBase.h"

#include "QORKITSettings.h"
#include "QORKITTapeModel.h"
#include "QORKITTranslation.h"
#include "QORKIT_RS_Dialogs.h"

#include <QAccessible>
#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QFontInfo>
#include <QFontMetricsF>
#include <QKeyEvent>
#include <QListView>
#include <QMimeData>
#include <QScreen>
#include <QStyle>
#include <QVariant>

#include <algorithm>
#include <cctype>
#include <unordered_map>
#include <utility>

namespace qorkit {

namespace {

constexpr int PanelHeight = 20; // value and memory panels
constexpr int MinCaptionPixels = 6; // the smallest size a key caption is shrunk to
constexpr int CaptionAir = 1; // free pixels kept between a caption and the key's frame
constexpr int DigitsPerLine = 32; // a long display breaks before its last 32 digits

// `text` as lines: one, or two when it has more than DigitsPerLine digits (the last
// DigitsPerLine on the second line, group spacing kept).
QStringList DisplayLines(const QString& text)
{
    int digits = 0;
    for (qsizetype i = text.size() - 1; i > 0; --i) {
        if (text[i].isSpace())
            continue;
        if (++digits == DigitsPerLine) {
            const QString first = text.left(i).trimmed();
            if (first.isEmpty())
                break;
            return {first, text.mid(i).trimmed()};
        }
    }
    return {text};
}

// Exit, Cancel and the clipboard keys, with the form's own handlers.
struct TFrameKey {
    QToolButton* TQORCalcFormBase::*Member;
    TQORKeyLook Look;
    void (TQORCalcFormBase::*Action)();
};

const TFrameKey FrameKeys[] = {
    {&TQORCalcFormBase::ExitBtn,
     {"ExitBtn", nullptr, nullptr, glExit, rsExitHint},
     &TQORCalcFormBase::ExitClick},
    {&TQORCalcFormBase::CancelBtn,
     {"CancelBtn", nullptr, nullptr, glCancel, rsCancelHint},
     &TQORCalcFormBase::CancelClick},
    {&TQORCalcFormBase::CopyBtn,
     {"CopyBtn", nullptr, nullptr, glCopy, rsCopyHint},
     &TQORCalcFormBase::CopyClick},
    {&TQORCalcFormBase::PasteBtn,
     {"PasteBtn", nullptr, nullptr, glPaste, rsPasteHint},
     &TQORCalcFormBase::PasteClick},
};

using Base = TQORCalcFormBase;

// Shortcut keys of every calculator: Delete clears the display, then the clipboard keys and
// Ctrl+X to exit. A form may add its own (AddKeyDowns).
const TQORKeyDownDef<Base> CommonKeyDowns[] = {
    {Qt::Key_Delete, Qt::NoModifier, false, nullptr, &Base::DeleteKey},
    {Qt::Key_Insert, Qt::ControlModifier, false, &Base::CopyBtn, nullptr},
    {Qt::Key_C, Qt::ControlModifier, false, &Base::CopyBtn, nullptr},
    {Qt::Key_V, Qt::ControlModifier, false, &Base::PasteBtn, nullptr},
    {Qt::Key_X, Qt::ControlModifier, false, &Base::ExitBtn, nullptr},
    {Qt::Key_Insert, Qt::ShiftModifier, false, &Base::PasteBtn, nullptr},
};

// Characters every calculator takes; the digits are looked up by value.
const TQORCharKey<Base> CommonCharKeys[] = {
    {8, &Base::BackSpaceBtn}, {13, &Base::EqualsBtn},       {'=', &Base::EqualsBtn},
    {27, &Base::CancelBtn},   {'(', &Base::LeftBracketBtn}, {')', &Base::RightBracketBtn},
    {'+', &Base::AddBtn},     {'-', &Base::SubtractBtn},    {'*', &Base::MultiplyBtn},
    {'/', &Base::DivideBtn},
};

// The character a key event types, as the keyboard preview sees it: the control keys as
// their classic codes, printable ASCII as itself, 0 for anything else.
char CharOf(const QKeyEvent& event)
{
    switch (event.key()) {
    case Qt::Key_Backspace:
        return 8;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return 13;
    case Qt::Key_Escape:
        return 27;
    default:
        break;
    }
    if (event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier))
        return 0;
    const QString text = event.text();
    if (text.size() != 1 || text[0].unicode() < 32 || text[0].unicode() > 126)
        return 0;
    return static_cast<char>(text[0].unicode());
}

// Answers to "in which pixel size does this caption fit that room" for one key font at one
// resolution. Every form of a kind asks the same questions: the answers are kept.
class TCaptionFits {
public:
    // The answers for captions in `base` at `dpi` dots per inch.
    static TCaptionFits& For(const QFont& base, int dpi)
    {
        // Fonts cannot outlive the application object: the answers go when it ends.
        using TFonts = std::unordered_map<std::pair<QFont, int>, TCaptionFits, PairHash>;
        static TFonts* kept = nullptr;
        if (kept == nullptr) {
            kept = new TFonts;
            qAddPostRoutine([] {
                delete kept;
                kept = nullptr;
            });
        }
        constexpr std::size_t MaxFonts = 64;
        auto key = std::pair(base, dpi);
        if (const auto known = kept->find(key); known != kept->end())
            return known->second;
        if (kept->size() >= MaxFonts)
            kept->clear();
        return kept->try_emplace(std::move(key), base).first->second;
    }

    explicit TCaptionFits(QFont base) : base_(std::move(base)) { }

    // The pixel size in which `text` fits `room` pixels drawn on `device` (of this resolution),
    // or 0 when it fits in the base font itself.
    int Pixels(const QPaintDevice& device, const QString& text, qreal room)
    {
        auto question = std::pair(text, room);
        if (const auto known = answers_.find(question); known != answers_.end())
            return known->second;
        const auto fits = [&](const QFont& font) {
            return QFontMetricsF(font, &device).horizontalAdvance(text) <= room;
        };
        int answer = 0;
        if (!fits(base_)) {
            // The largest smaller size that fits, at least MinCaptionPixels; a font already
            // that small keeps its size.
            const int full = QFontInfo(base_).pixelSize();
            answer = full - 1 >= MinCaptionPixels ? MinCaptionPixels : full;
            QFont font = base_;
            for (int pixels = full - 1; pixels > MinCaptionPixels; --pixels) {
                font.setPixelSize(pixels);
                if (fits(font)) {
                    answer = pixels;
                    break;
                }
            }
        }
        constexpr std::size_t MaxAnswers = 1024; // languages times keys, with room
        if (answers_.size() >= MaxAnswers)
            answers_.clear();
        answers_.emplace(std::move(question), answer);
        return answer;
    }

private:
    struct PairHash {
        template<class A, class B> std::size_t operator()(const std::pair<A, B>& p) const noexcept
        {
            return qHashMulti(0, p.first, p.second);
        }
    };
    QFont base_;
    std::unordered_map<std::pair<QString, qreal>, int, PairHash> answers_;
};

// Gives a text key its caption size: the base font, or the largest smaller size of it in
// which the caption fits between the key's frame.
void FitCaption(QToolButton* key, const QFont& base, TCaptionFits& fits)
{
    if (key->toolButtonStyle() != Qt::ToolButtonTextOnly)
        return;
    // The style draws the caption centred inside the key's frame.
    const int frame = key->style()->pixelMetric(QStyle::PM_DefaultFrameWidth, nullptr, key);
    const qreal room = key->contentsRect().width() - 2 * (frame + CaptionAir);
    const int pixels = fits.Pixels(*key, key->text(), room);
    if (pixels == 0) {
        if (key->testAttribute(Qt::WA_SetFont))
            key->setFont(QFont()); // back to the inherited font
        return;
    }
    QFont font = base;
    font.setPixelSize(pixels);
    if (!key->testAttribute(Qt::WA_SetFont) || key->font() != font)
        key->setFont(font);
}

// Sets the value kept for `key` in a short list of pairs, adding the pair the first time.
template<class Key, class Value>
void Keep(std::vector<std::pair<Key, Value>>& pairs, Key key, const Value& value)
{
    const auto known = std::find_if(pairs.begin(), pairs.end(),
                                    [key](const auto& pair) { return pair.first == key; });
    if (known != pairs.end())
        known->second = value;
    else
        pairs.emplace_back(key, value);
}

// What `make` makes of library texts, by `key`. The built-in English texts never change, so
// while no translation hook is installed each is made once per process (one store per use);
// with a hook installed every call makes it again (translators may come and go at any time).
template<class Key, class Make> auto MadeOnce(const Key& key, Make make)
{
    if (HasTranslationHook())
        return make();
    static std::unordered_map<Key, decltype(make())> made;
    auto known = made.find(key);
    if (known == made.end())
        known = made.emplace(key, make()).first;
    return known->second;
}

QString LibraryText(TQORTextFn text)
{
    return MadeOnce(text, [text] { return ToQString(text()); });
}

// A key's accessible name and description, by its object name.
struct TKeyAccessTexts {
    QString Name;
    QString Description;
};

TKeyAccessTexts KeyAccessTexts(std::string_view key, bool programmers)
{
    return MadeOnce(std::string(key) + (programmers ? "/programmer's" : ""), [=] {
        return TKeyAccessTexts {ToQString(KeyAccessibleName(key, programmers)),
                                ToQString(KeyAccessibleDescription(key, programmers))};
    });
}

// A calculator key: a tool button whose size the key grid fixes; once fixed, that size is also
// its size hint (a host laying the key panel out gets the grid's size without the caption and
// icon being measured). The form previews what reaches a key (typed keys, presses) itself,
// without an event filter that every other event of the key would pass through.
class TKeyButton final : public QToolButton {
public:
    TKeyButton(QWidget* panel, QObject* form) : QToolButton(panel), form_(form) { }
    QSize sizeHint() const override { return Fixed() ? minimumSize() : QToolButton::sizeHint(); }
    QSize minimumSizeHint() const override
    {
        return Fixed() ? minimumSize() : QToolButton::minimumSizeHint();
    }

protected:
    bool event(QEvent* event) override
    {
        const auto type = event->type();
        if ((type == QEvent::KeyPress || type == QEvent::MouseButtonPress)
            && form_->eventFilter(this, event))
            return true;
        return QToolButton::event(event);
    }

private:
    bool Fixed() const { return !minimumSize().isEmpty() && minimumSize() == maximumSize(); }
    QObject* form_;
};

} // namespace

TQORCalcFormBase::TQORCalcFormBase(QWidget* parent, TQORFormGeometry geometry, QFont keyFont)
    : QDialog(parent), geometry_(geometry)
{
    keyTexts_.reserve(64); // the most keys a form has
    setFont(keyFont);
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    // Each child resolves the key font against the form's screen. Until the form has a native
    // window, Qt finds that screen by the form's position every time; with one screen there is
    // only one answer, so give it now (Qt forgets it once the window is made).
    if (const auto screens = QGuiApplication::screens(); screens.size() == 1)
        setScreen(screens.front());
    KeyPanel = new TQORBasePanel(this);
    KeyPanel->setObjectName(QStringLiteral("KeyPanel"));
    KeyPanel->SetBevel(bvNone);
    KeyPanel->setFocusPolicy(Qt::StrongFocus);
    KeyPanel->setText(QString());
    const auto makeDisplay = [this](const char* name) {
        auto* panel = new TQORBasePanel(this);
        panel->setObjectName(QString::fromLatin1(name));
        panel->SetAlignment(Qt::AlignRight | Qt::AlignVCenter);
        panel->setIndent(4);
        panel->setTextFormat(Qt::PlainText);
        panel->SetColor(palette().color(QPalette::Base));
        QFont font = panel->font();
        font.setBold(true);
        panel->setFont(font);
        return panel;
    };
    ValueDisplay = makeDisplay("ValueDisplay");
    MemoryDisplay = makeDisplay("MemoryDisplay");
    displayFont_ = ValueDisplay->font();
    for (const auto& key : FrameKeys) {
        QToolButton* button = NewKey(key.Look);
        this->*(key.Member) = button;
        connect(button, &QToolButton::clicked, this,
                [this, action = key.Action] { (this->*action)(); });
    }
    AddCharKeys(*this, CommonCharKeys);
    AddKeyDowns(*this, CommonKeyDowns);
}

TQORCalcFormBase::~TQORCalcFormBase() = default;

QToolButton* TQORCalcFormBase::NewKey(const TQORKeyLook& look)
{
    auto* button = new TKeyButton(KeyPanel, this);
    button->setObjectName(QString::fromLatin1(look.Name));
    // Keys take the focus from Tab only (a click leaves it where typing goes on working).
    button->setFocusPolicy(Qt::TabFocus);
    button->setAutoRaise(flat_);
    button->setToolButtonStyle(look.Glyph >= 0 ? Qt::ToolButtonIconOnly : Qt::ToolButtonTextOnly);
    if (look.Text != nullptr)
        button->setText(QString::fromUtf8(look.Text));
    if (look.Glyph >= 0) {
        button->setIcon(QORGlyphIcon(static_cast<TQORGlyph>(look.Glyph)));
        button->setIconSize(QSize(16, 16));
    }
    keyTexts_.push_back({button, look});
    // The form's first UpdateLanguage gives the keys made before it their texts.
    if (languageApplied_)
        ApplyKeyTexts(keyTexts_.back());
    FitKeyCaption(button);
    return button;
}

void TQORCalcFormBase::ApplyKeyTexts(const KeyText& key) const
{
    QToolButton* button = key.Button;
    if (key.Look.Caption != nullptr)
        button->setText(LibraryText(key.Look.Caption));
    if (key.Look.Hint != nullptr) {
        const QString hint = LibraryText(key.Look.Hint);
        if (button->toolTip() != hint)
            button->setToolTip(hint);
    }
    const TKeyAccessTexts texts = KeyAccessTexts(key.Look.Name, ProgrammersKeys());
    if (button->accessibleName() != texts.Name)
        button->setAccessibleName(texts.Name);
    if (button->accessibleDescription() != texts.Description)
        button->setAccessibleDescription(texts.Description);
}

void TQORCalcFormBase::UpdateLanguage()
{
    // A caption the host set stays; the form's own one follows the language.
    const bool ownTitle = windowTitle().isEmpty() || windowTitle() == defaultTitle_;
    defaultTitle_ = ToQString(rsCalculator());
    if (ownTitle)
        setWindowTitle(defaultTitle_);
    if (TapeView != nullptr) {
        TapeView->setToolTip(ToQString(rsTapeHint()));
        for (auto* action : TapeView->actions())
            action->setText(ToQString(rsTapeCopy()));
    }
    languageApplied_ = true;
    for (const auto& key : keyTexts_)
        ApplyKeyTexts(key);
    ValueDisplay->setToolTip(ToQString(rsValueHint()));
    MemoryDisplay->setToolTip(ToQString(rsMemoryHint()));
    ValueDisplay->setAccessibleName(ToQString(rsDisplayAccName()));
    ValueDisplay->setAccessibleDescription(ToQString(rsDisplayAccDescription()));
    MemoryDisplay->setAccessibleName(ToQString(rsMemoryAccName()));
    MemoryDisplay->setAccessibleDescription(ToQString(rsMemoryAccDescription()));
    KeyPanel->setAccessibleName(ToQString(rsCalculator()));
    if (TapeView != nullptr) {
        TapeView->setAccessibleName(ToQString(rsTapeHint()));
        TapeView->setAccessibleDescription(ToQString(rsTapeAccDescription()));
    }
    FitKeyCaptions();
}

void TQORCalcFormBase::SetKeyText(QToolButton* key, const QString& text)
{
    key->setText(text);
    FitKeyCaption(key);
}

void TQORCalcFormBase::FitKeyCaption(QToolButton* key) const
{
    // Before the grid has laid the keys out they have no size of their own to fit.
    if (!keysLaidOut_)
        return;
    const QFont base = KeyPanel->font();
    FitCaption(key, base, TCaptionFits::For(base, KeyPanel->logicalDpiY()));
}

void TQORCalcFormBase::FitKeyCaptions() const
{
    // The form's own font is set before its keys exist, and they are fitted once laid out.
    if (KeyPanel == nullptr || !keysLaidOut_)
        return;
    // The keys share the panel's font and screen: the answers for them are looked up once.
    const QFont base = KeyPanel->font();
    TCaptionFits& fits = TCaptionFits::For(base, KeyPanel->logicalDpiY());
    for (auto* key : KeyPanel->findChildren<QToolButton*>(Qt::FindDirectChildrenOnly))
        FitCaption(key, base, fits);
}

void TQORCalcFormBase::changeEvent(QEvent* event)
{
    QDialog::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        UpdateLanguage();
    else if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange)
        FitKeyCaptions();
    else if (event->type() == QEvent::LayoutDirectionChange) {
        MirrorChildren();
        UpdateTabOrder();
    }
}

void TQORCalcFormBase::SetPanelText(TQORBasePanel* panel, const QString& text, bool fitted)
{
    if (DisplayText(panel) == text)
        return;
    if (fitted)
        ShowFitted(panel, text); // may break the text into lines and shrink its font
    else
        panel->setText(text);
    QAccessibleValueChangeEvent event(panel, text);
    QAccessible::updateAccessibility(&event);
}

void TQORCalcFormBase::UpdateTabOrder()
{
    // Everything Tab reaches, by where it is on the form: rows top to bottom (keys of a row
    // share their top), in reading order inside a row (right to left on a form that reads so);
    // the tape beside the keys comes last.
    const bool rightToLeft = layoutDirection() == Qt::RightToLeft;
    struct TStop {
        int Top;
        int Left;
        QWidget* Widget;
    };
    std::vector<TStop> chain;
    for (auto* widget : findChildren<QWidget*>()) {
        if ((widget->focusPolicy() & Qt::TabFocus) != 0 && !widget->isHidden()
            && widget != TapeView) {
            const QPoint topLeft = widget->mapTo(this, QPoint(0, 0));
            const int along = rightToLeft ? -(topLeft.x() + widget->width()) : topLeft.x();
            chain.push_back({topLeft.y(), along, widget});
        }
    }
    // A control's inner editor (a spin edit's line edit) goes with its control.
    std::vector<const QWidget*> inner;
    for (const TStop& stop : chain) {
        const QWidget* proxy = stop.Widget->focusProxy();
        if (proxy != nullptr && stop.Widget->isAncestorOf(proxy))
            inner.push_back(proxy);
    }
    std::erase_if(chain, [&inner](const TStop& stop) {
        return std::find(inner.begin(), inner.end(), stop.Widget) != inner.end();
    });
    std::stable_sort(chain.begin(), chain.end(), [](const TStop& a, const TStop& b) {
        return std::pair(a.Top, a.Left) < std::pair(b.Top, b.Left);
    });
    if (TapeView != nullptr && !TapeView->isHidden())
        chain.push_back({0, 0, TapeView});
    for (std::size_t i = 1; i < chain.size(); ++i)
        setTabOrder(chain[i - 1].Widget, chain[i].Widget);
}

void TQORCalcFormBase::LayOutGrid(const std::vector<TGridCell>& cells, int rows)
{
    // Every cell of the grid is one key wide and high, with no gaps: at the form's own scale
    // the keys stand where the cells are, mirrored when the form reads right to left. Cells and
    // keys have fixed sizes, so the keys are placed directly (a layout would only measure them
    // again); a form not shown yet has its keys in place too.
    const int w = geometry_.KeyWidth;
    const int h = geometry_.KeyHeight;
    KeyPanel->setFixedSize(geometry_.Columns * w, rows * h);
    for (auto* button : KeyPanel->findChildren<QToolButton*>(Qt::FindDirectChildrenOnly)) {
        const bool placed
            = std::any_of(cells.begin(), cells.end(),
                          [button](const TGridCell& cell) { return cell.Widget == button; });
        if (!placed)
            button->hide(); // the small calculator leaves some keys out
    }
    for (const auto& cell : cells) {
        cell.Widget->setFixedSize(cell.Span * w, h);
        PlaceChild(cell.Widget, QRect(cell.Col * w, cell.Row * h, cell.Span * w, h));
        if (cell.Widget->isHidden())
            cell.Widget->show();
    }
    keysLaidOut_ = true;
    FitKeyCaptions();
}

void TQORCalcFormBase::LayoutPanels(int rows, int extraHeight)
{
    // With D the value panel's height + 10: the form is the key grid + 10 wide
    // and 2 D + rows * key height + 5 high.
    const int h = geometry_.KeyHeight;
    const int clientWidth = geometry_.Columns * geometry_.KeyWidth + 10;
    const int d = PanelHeight + 10;
    PlaceChild(ValueDisplay, QRect(5, 5, clientWidth - 10, PanelHeight));
    PlaceChild(KeyPanel, QRect(QPoint(5, d), KeyPanel->size()));
    PlaceChild(MemoryDisplay, QRect(5, d + rows * h + 5, clientWidth - 10, PanelHeight));
    SetFormSize(clientWidth, 2 * d + rows * h + 5 + extraHeight);
}

void TQORCalcFormBase::PlaceChild(QWidget* child, const QRect& place)
{
    Keep(places_, child, place);
    PlaceMirrored(child, place);
}

void TQORCalcFormBase::PlaceMirrored(QWidget* child, const QRect& place)
{
    const QWidget* parent = child->parentWidget();
    child->setGeometry(QStyle::visualRect(parent->layoutDirection(), parent->rect(), place));
}

void TQORCalcFormBase::MirrorChildren()
{
    for (const auto& [child, place] : places_)
        PlaceMirrored(child, place);
}

void TQORCalcFormBase::SetFormSize(int width, int height)
{
    formWidth_ = width;
    formHeight_ = height;
    const bool tape = showTape_ && TapeView != nullptr;
    setFixedSize(width + (tape ? TapeWidth + 5 : 0), height);
    if (tape)
        PlaceChild(TapeView, QRect(width, 5, TapeWidth, height - 10));
    MirrorChildren(); // the form's width changed: right to left, everything moves
}

void TQORCalcFormBase::SetTapeModel(TQORTapeModel* model) { tapeModel_ = model; }

void TQORCalcFormBase::MakeTapeView()
{
    // Made when the tape is first shown: most forms never show it.
    TQORTapeModel* model = tapeModel_;
    TapeView = new QListView(this);
    TapeView->setObjectName(QStringLiteral("TapeView"));
    TapeView->setUniformItemSizes(true);
    TapeView->setSelectionMode(QAbstractItemView::ExtendedSelection);
    TapeView->setEditTriggers(QAbstractItemView::NoEditTriggers);
    TapeView->setFocusPolicy(Qt::StrongFocus);
    TapeView->setToolTip(ToQString(rsTapeHint()));
    TapeView->setAccessibleName(ToQString(rsTapeHint()));
    TapeView->setAccessibleDescription(ToQString(rsTapeAccDescription()));
    TapeView->setModel(model);
    auto* copy = new QAction(ToQString(rsTapeCopy()), TapeView);
    copy->setObjectName(QStringLiteral("TapeCopyAction"));
    connect(copy, &QAction::triggered, model, [model] { model->CopyToClipboard(); });
    TapeView->addAction(copy);
    TapeView->setContextMenuPolicy(Qt::ActionsContextMenu);
    connect(model, &QAbstractItemModel::rowsInserted, TapeView,
            [view = TapeView] { view->scrollToBottom(); });
    // Keys typed while the tape has the focus still reach the calculator.
    TapeView->installEventFilter(this);
}

void TQORCalcFormBase::SetShowTape(bool value)
{
    if (tapeModel_ == nullptr || value == showTape_)
        return;
    showTape_ = value;
    if (value && TapeView == nullptr)
        MakeTapeView();
    TapeView->setVisible(value);
    UpdateTabOrder();
    if (formWidth_ > 0)
        SetFormSize(formWidth_, formHeight_);
    if (value)
        TapeView->scrollToBottom();
}

void TQORCalcFormBase::InstallKeyPreview()
{
    installEventFilter(this);
    for (auto* child : findChildren<QWidget*>())
        if (dynamic_cast<TKeyButton*>(child) == nullptr) // keys preview their own events
            child->installEventFilter(this);
}

bool TQORCalcFormBase::OtherChar(char) { return false; }

void TQORCalcFormBase::Click(TQORKeyMember<TQORCalcFormBase> key)
{
    if (key == nullptr)
        return;
    if (QToolButton* button = this->*key)
        button->click();
}

bool TQORCalcFormBase::PreviewKey(QKeyEvent* event)
{
    const Qt::KeyboardModifiers modifiers = event->modifiers();
    const Qt::KeyboardModifiers shifts = modifiers & ~Qt::KeypadModifier;
    for (const auto& def : keyDowns_) {
        if (event->key() != def.Key || shifts != def.Modifiers)
            continue;
        if (def.Keypad && !(modifiers & Qt::KeypadModifier))
            continue;
        if (def.Button != nullptr)
            Click(def.Button);
        else
            (this->*def.Action)();
        return true;
    }
    return false;
}

bool TQORCalcFormBase::PreviewChar(QKeyEvent* event, char ch)
{
    (void)event;
    if (ch == 0)
        return false;
    if (FoldCase())
        ch = static_cast<char>(std::toupper(static_cast<unsigned char>(ch)));
    if (ch >= '0' && ch <= '9') {
        QToolButton* const digits[] = {ZeroBtn, OneBtn, TwoBtn,   ThreeBtn, FourBtn,
                                       FiveBtn, SixBtn, SevenBtn, EightBtn, NineBtn};
        digits[ch - '0']->click();
        return true;
    }
    for (const auto& key : charKeys_) {
        if (key.Ch == ch) {
            Click(key.Key);
            Click(key.Then);
            return true;
        }
    }
    return OtherChar(ch);
}

bool TQORCalcFormBase::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == KeyPanel && event->type() == QEvent::LayoutDirectionChange)
        MirrorChildren(); // the key panel alone turned: its keys follow
    if (event->type() == QEvent::MouseButtonPress && qobject_cast<QToolButton*>(watched) != nullptr
        && watched->parent() == KeyPanel) {
        // A click on a key must not leave the focus in the spin edit or a list: typing goes on
        // working through the key panel.
        KeyPanel->setFocus(Qt::MouseFocusReason);
        return false;
    }
    if (event->type() != QEvent::KeyPress || forwarding_)
        return QDialog::eventFilter(watched, event);
    auto* keyEvent = static_cast<QKeyEvent*>(event);
    if (PreviewKey(keyEvent))
        return true;
    if (!PreviewChar(keyEvent, CharOf(*keyEvent)))
        return false; // not ours: the control (or its parents) may use it
    if (SwallowChars() || !isVisible())
        return true;
    // The key was used, but the focused control sees it too; the filter stays out of the way
    // while it does, and the event is not offered to the form a second time.
    forwarding_ = true;
    QCoreApplication::sendEvent(watched, event);
    forwarding_ = false;
    event->accept(); // handled: the parents do not get it again
    return true;
}

void TQORCalcFormBase::CopyClick()
{
    QGuiApplication::clipboard()->setText(DisplayText(ValueDisplay));
}

void TQORCalcFormBase::PasteClick()
{
    const QMimeData* mime = QGuiApplication::clipboard()->mimeData();
    if (mime != nullptr && mime->hasText())
        PasteText(mime->text().toStdString());
}

void TQORCalcFormBase::ExitClick()
{
    cancelled_ = false;
    done(Accepted);
}

void TQORCalcFormBase::CancelClick()
{
    cancelled_ = true;
    done(Rejected);
}

void TQORCalcFormBase::SetExitHint(const QString& hint) { ExitBtn->setToolTip(hint); }

void TQORCalcFormBase::SetCalcFlat(bool flat)
{
    flat_ = flat;
    for (auto* button : KeyPanel->findChildren<QToolButton*>(Qt::FindDirectChildrenOnly))
        button->setAutoRaise(flat);
}

void TQORCalcFormBase::SetKeyColor(const QColor& color) { KeyPanel->SetColor(color); }

void TQORCalcFormBase::ApplyDispFont(const QString& description)
{
    if (description.isEmpty())
        return;
    QFont font = displayFont_;
    if (!font.fromString(description))
        font.setFamily(description);
    SetDisplayFont(font);
}

void TQORCalcFormBase::SetDispFontName(const QString& family)
{
    if (family.isEmpty())
        return;
    QFont font = displayFont_;
    font.setFamily(family);
    SetDisplayFont(font);
}

void TQORCalcFormBase::SetDisplayFont(const QFont& font)
{
    displayFont_ = font;
    ValueDisplay->setFont(font);
    MemoryDisplay->setFont(font);
    for (const auto& [panel, text] : std::vector(fittedTexts_))
        ShowFitted(panel, text);
}

void TQORCalcFormBase::ShowFitted(TQORBasePanel* panel, const QString& text)
{
    Keep(fittedTexts_, panel, text);

    const QRect room = panel->contentsRect().adjusted(
        panel->margin(), panel->margin(), -panel->margin() - panel->indent() - 1, -panel->margin());
    const auto fits = [&](const QFont& font, const QStringList& lines) {
        const QFontMetricsF metrics(font, panel);
        if (static_cast<qreal>(lines.size()) * metrics.lineSpacing() > room.height())
            return false;
        return std::all_of(lines.begin(), lines.end(), [&](const QString& line) {
            return metrics.horizontalAdvance(line) <= room.width();
        });
    };
    QStringList lines {text};
    QFont font = displayFont_;
    if (!fits(font, lines)) {
        lines = DisplayLines(text);
        for (int pixels = QFontInfo(displayFont_).pixelSize(); pixels >= MinCaptionPixels;
             --pixels) {
            font.setPixelSize(pixels);
            if (fits(font, lines))
                break;
        }
    }
    panel->setFont(font);
    panel->setText(lines.join(QLatin1Char('\n')));
}

QString TQORCalcFormBase::DisplayText(const TQORBasePanel* panel) const
{
    for (const auto& [fitted, text] : fittedTexts_) {
        if (fitted == panel)
            return text;
    }
    return panel->text();
}

void TQORCalcFormBase::SetStayOnTop(bool value)
{
    if (value == stayOnTop_)
        return;
    stayOnTop_ = value;
    ApplyWindowFlags();
}

void TQORCalcFormBase::ApplyWindowFlags()
{
    const bool visible = isVisible();
    setWindowFlag(Qt::WindowStaysOnTopHint, stayOnTop_);
    // Changing the flags hides a shown window; it comes straight back.
    if (visible && !isVisible())
        show();
}

void TQORCalcFormBase::SetGlyphs(const QIcon& close, const QIcon& copy, const QIcon& paste,
                                 const QIcon& cancel)
{
    const std::pair<QToolButton*, const QIcon*> glyphs[]
        = {{ExitBtn, &close}, {CopyBtn, &copy}, {PasteBtn, &paste}, {CancelBtn, &cancel}};
    for (const auto& [button, icon] : glyphs) {
        if (!icon->isNull())
            button->setIcon(*icon);
    }
}

void TQORCalcFormBase::Place(TQORFormPosition position) { position_ = position; }

void TQORCalcFormBase::MoveTo(int left, int top)
{
    explicitLeft_ = left;
    explicitTop_ = top;
}

void TQORCalcFormBase::showEvent(QShowEvent* event)
{
    UpdateTabOrder();
    // Typing starts on the keys whatever comes first in the tab order (the lists above the
    // programmer's keys).
    if (focusWidget() == nullptr)
        KeyPanel->setFocus(Qt::OtherFocusReason);
    if (!placed_) {
        placed_ = true;
        QPoint topLeft = pos();
        QRect area;
        // The window that opened the form: its parent's, else the active one.
        QWidget* host
            = parentWidget() != nullptr ? parentWidget()->window() : QApplication::activeWindow();
        if (position_ == poMainFormCenter && host != nullptr && host != this) {
            area = host->frameGeometry();
        } else if (position_ == poScreenCenter || position_ == poMainFormCenter) {
            // The screen of the window that opened the form, else the primary one.
            QScreen* screen = host != nullptr ? host->screen() : QGuiApplication::primaryScreen();
            area = screen != nullptr ? screen->availableGeometry() : QRect();
        }
        // The window frame is centred, as far as the window system has told its size.
        if (area.isValid())
            topLeft = area.center() - QRect(QPoint(0, 0), frameGeometry().size()).center();
        if (explicitLeft_ != -1)
            topLeft.setX(explicitLeft_);
        if (explicitTop_ != -1)
            topLeft.setY(explicitTop_);
        move(topLeft);
    }
    QDialog::showEvent(event);
    KeyPanel->setFocus(Qt::OtherFocusReason);
}

// ---- Components ------------------------------------------------------------------------------

TQORCalcComponent::TQORCalcComponent(QObject* owner)
    : QObject(owner), colorSet_(new TQOREditColorSet(this)), title_(ToQString(rsCalculator())),
      exitHint_(ToQString(rsExitHint()))
{ }

TQORCalcComponent::~TQORCalcComponent()
{
    if (storeCtrl_)
        storeCtrl_->RemoveFromNotifyList(this);
}

void TQORCalcComponent::SetStoreCtrl(TQORStoreCtrl* value)
{
    if (value == storeCtrl_.data())
        return;
    const TQORRegIniType oldRegIni = GetRegIni();
    if (storeCtrl_) {
        storeCtrl_->RemoveFromNotifyList(this);
        disconnect(storeCtrl_, nullptr, this, nullptr);
    }
    storeCtrl_ = value;
    if (GetRegIni() != oldRegIni)
        Q_EMIT regIniChanged();
    if (storeCtrl_) {
        storeCtrl_->AddToNotifyList(this);
        connect(storeCtrl_, &TQORStoreCtrl::regIniTypeChanged, this,
                &TQORCalcComponent::regIniChanged);
    }
    Q_EMIT storeCtrlChanged();
}

void TQORCalcComponent::SetUICtrl(TQORUICtrl* value)
{
    if (value == uiCtrl_.data())
        return;
    uiCtrl_ = value;
    Q_EMIT uiCtrlChanged();
}

QWidget* TQORCalcComponent::OwnerWindow() const
{
    for (QObject* owner = parent(); owner != nullptr; owner = owner->parent()) {
        if (owner->isWidgetType())
            return static_cast<QWidget*>(owner)->window();
    }
    return QORHostWindow(nullptr);
}

QWidget* QORHostWindow(QWidget* parent)
{
    return parent != nullptr ? parent->window() : QApplication::activeWindow();
}

void TQORCalcComponent::Notification(QObject* component, TQOROperation operation)
{
    if (operation != opRemove)
        return;
    if (component == storeCtrl_.data())
        SetStoreCtrl(nullptr);
    if (component == uiCtrl_.data())
        SetUICtrl(nullptr);
}

void TQORCalcComponent::SetHiColorOnly(bool value)
{
    if (value == hiColorOnly_)
        return;
    hiColorOnly_ = value;
    Q_EMIT hiColorOnlyChanged();
    NotifyGlyphChange();
}

void TQORCalcComponent::SetGlyph(QIcon& field, const QIcon& value,
                                 void (TQORCalcComponent::*signal)())
{
    if (field.cacheKey() == value.cacheKey())
        return;
    field = value;
    (this->*signal)();
    NotifyGlyphChange();
}

void TQORCalcComponent::SetCalcEditGlyph(const QIcon& value)
{
    SetGlyph(calcEditGlyph_, value, &TQORCalcComponent::calcEditGlyphChanged);
}
void TQORCalcComponent::SetCloseGlyph(const QIcon& value)
{
    SetGlyph(closeGlyph_, value, &TQORCalcComponent::closeGlyphChanged);
}
void TQORCalcComponent::SetCancelGlyph(const QIcon& value)
{
    SetGlyph(cancelGlyph_, value, &TQORCalcComponent::cancelGlyphChanged);
}
void TQORCalcComponent::SetCopyGlyph(const QIcon& value)
{
    SetGlyph(copyGlyph_, value, &TQORCalcComponent::copyGlyphChanged);
}
void TQORCalcComponent::SetPasteGlyph(const QIcon& value)
{
    SetGlyph(pasteGlyph_, value, &TQORCalcComponent::pasteGlyphChanged);
}

void TQORCalcComponent::SetPosition(TQORFormPosition value)
{
    if (value <= poMainFormCenter)
        Store(position_, value, &TQORCalcComponent::positionChanged);
}

TQORRegIniType TQORCalcComponent::GetRegIni() const
{
    return storeCtrl_ ? storeCtrl_->GetRegIniType() : ritNone;
}

void TQORCalcComponent::SetRegIni(TQORRegIniType value)
{
    // The store signals the change, and the component passes it on.
    if (storeCtrl_)
        storeCtrl_->SetRegIniType(value);
}

void TQORCalcComponent::AddToNotifyGlyphChanges(QObject* client)
{
    if (client == nullptr)
        return;
    for (const auto& known : glyphClients_) {
        if (known.data() == client)
            return;
    }
    glyphClients_.emplace_back(client);
}

void TQORCalcComponent::RemoveFromNotifyGlyphChanges(QObject* client)
{
    std::erase_if(glyphClients_, [client](const QPointer<QObject>& known) {
        return known.isNull() || known.data() == client;
    });
}

void TQORCalcComponent::NotifyGlyphChange()
{
    // A client may unregister while it is told; work on a copy.
    const auto clients = glyphClients_;
    for (const auto& client : clients) {
        if (auto* glyphClient = dynamic_cast<IQORGlyphClient*>(client.data()))
            glyphClient->GlyphChanged(this);
    }
    Q_EMIT GlyphChanged();
}

void TQORCalcComponent::LoadFromStore() { TransferStore(false); }

void TQORCalcComponent::SaveToStore() { TransferStore(true); }

// Reads or writes every key of StoreKeys(); the property's type picks the typed store call.
void TQORCalcComponent::TransferStore(bool save)
{
    TQORStoreCtrl* store = storeCtrl_.data();
    if (store == nullptr)
        return;
    if (store->OpenStorage(storeSection_)) {
        for (const auto& item : StoreKeys()) {
            const QString key = QString::fromLatin1(item.Key);
            if (item.Property == nullptr) { // the memory register
                if (save)
                    WriteMemory(*store, key);
                else if (loadMemoryAtStart_)
                    ReadMemory(*store, key);
                continue;
            }
            const QVariant current = property(item.Property);
            QVariant value;
            // Enumerations are kept as their numbers.
            const bool enumeration = (current.metaType().flags() & QMetaType::IsEnumeration) != 0;
            switch (enumeration ? QMetaType::Int : current.typeId()) {
            case QMetaType::Bool:
                if (save)
                    store->WriteBoolean(key, current.toBool());
                else
                    value = store->ReadBoolean(key, current.toBool());
                break;
            case QMetaType::Int:
                if (save)
                    store->WriteInteger(key, current.toInt());
                else
                    value = store->ReadInteger(key, current.toInt());
                break;
            case QMetaType::Double:
                if (save)
                    store->WriteFloat(key, current.toDouble());
                else
                    value = store->ReadFloat(key, current.toDouble());
                break;
            default:
                if (save)
                    store->WriteString(key, current.toString());
                else
                    value = store->ReadString(key, current.toString());
                break;
            }
            if (!save)
                setProperty(item.Property, value);
        }
    }
    store->CloseStorage();
}

void TQORCalcComponent::SetShowTape(bool value)
{
    if (value == showTape_)
        return;
    showTape_ = value;
    Q_EMIT showTapeChanged(value);
}

bool TQORCalcComponent::RunDialog()
{
    std::unique_ptr<TQORCalcFormBase> form = CreateForm();
    // CreateForm gives the form OwnerWindow() as its parent: the dialog is that window's child.
    form->SetExitHint(exitHint_);
    if (usePosition_) {
        form->Place(poDesigned);
        form->MoveTo(positionLeft_, positionTop_);
    } else {
        form->Place(position_);
    }
    form->SetStayOnTop(stayOnTop_);
    form->SetShowTape(showTape_);
    form->setWindowTitle(title_);
    SetUpForm(*form);
    form->SetDispFontName(dispFont_);
    form->SetKeyColor(colorBackground_);
    form->SetCalcFlat(flat_);
    form->SetGlyphs(closeGlyph_, copyGlyph_, pasteGlyph_, cancelGlyph_);
    StartCalculator(*form);
    form->exec();
    const bool accepted = !form->GetCancelled();
    lastError_ = ToQString(form->GetLastError());
    if (accepted) {
        displayText_ = form->DisplayText(form->ValueDisplay);
        ReadBack(*form);
    }
    return accepted;
}

TQORDispFontScope::TQORDispFontScope(const std::string& font) : saved_(QORCalcDispFont)
{
    if (!font.empty())
        QORCalcDispFont = font;
}

TQORDispFontScope::~TQORDispFontScope() { QORCalcDispFont = saved_; }

} // namespace qorkit
