#include "QORKITTapeModel.h"

#include "QORKITTranslation.h"

#include <QClipboard>
#include <QFile>
#include <QGuiApplication>
#include <QMimeData>
#include <QPointer>
#include <QTimer>

#include <algorithm>
#include <utility>

namespace qorkit {

namespace {

// Puts `call` behind whatever handler the engine has for an event; the model may go first.
template<class Engine, class Handler>
Handler Chain(Handler previous, QPointer<TQORTapeModel> model, void (TQORTapeModel::*call)())
{
    return [previous = std::move(previous), model, call](Engine* engine) {
        if (previous)
            previous(engine);
        if (model)
            (model.data()->*call)();
    };
}

} // namespace

TQORTapeModel::TQORTapeModel(TLines lines, std::function<TQORTapeReader()> makeReader,
                             QObject* parent)
    : QAbstractListModel(parent), lines_(std::move(lines)), makeReader_(std::move(makeReader)),
      reader_(makeReader_())
{ }

TQORTapeModel::TQORTapeModel(TQORCalcEngine& engine, QObject* parent)
    : TQORTapeModel([&engine] { return engine.GetHistory(); }, [] { return TQORTapeReader(); },
                    parent)
{
    const QPointer<TQORTapeModel> self(this);
    engine.SetOnHistoryChange(
        Chain<TQORCalcEngine>(engine.GetOnHistoryChange(), self, &TQORTapeModel::Sync));
    // All clear empties the tape after its display event: look again once the key is done.
    engine.SetOnDisplayChange(
        Chain<TQORCalcEngine>(engine.GetOnDisplayChange(), self, &TQORTapeModel::ScheduleSync));
    Sync();
}

TQORTapeModel::TQORTapeModel(IQORProgCalcEngine& engine, QObject* parent)
    : TQORTapeModel(
        [&engine] {
            std::vector<std::string> lines;
            const auto count = std::max(engine.GetHistoryLength(), 0);
            lines.reserve(static_cast<std::size_t>(count));
            for (std::int32_t i = 0; i < count; ++i)
                lines.push_back(engine.GetHistoryEntry(static_cast<std::uint16_t>(i)));
            return lines;
        },
        [&engine] { return ProgTapeReader(engine.GetBaseDisplay(), engine.GetBitSize()); }, parent)
{
    const QPointer<TQORTapeModel> self(this);
    engine.SetOnHistoryChange(
        Chain<IQORProgCalcEngine>(engine.GetOnHistoryChange(), self, &TQORTapeModel::Sync));
    engine.SetOnDisplayChange(
        Chain<IQORProgCalcEngine>(engine.GetOnDisplayChange(), self, &TQORTapeModel::ScheduleSync));
    Sync();
}

TQORTapeModel::~TQORTapeModel() = default;

int TQORTapeModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : GetCount();
}

QVariant TQORTapeModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid() || index.row() < 0 || index.row() >= GetCount())
        return {};
    const TQORTapeRow& row = rows_[static_cast<std::size_t>(index.row())];
    switch (role) {
    case TextRole:
        return ToQString(row.Text);
    case NumberRole:
        if (!row.Number)
            return {};
        if (row.Integer)
            return QVariant::fromValue(static_cast<qlonglong>(*row.Number));
        return QVariant::fromValue(static_cast<double>(*row.Number));
    case OperatorRole:
        return ToQString(row.Operator);
    case KindRole:
        return ToQString(std::string(TapeRowKindName(row.Kind)));
    case NumberTextRole:
        return ToQString(row.NumberText);
    case Qt::TextAlignmentRole:
        return QVariant::fromValue(Qt::Alignment(Qt::AlignRight | Qt::AlignVCenter));
    default:
        return {};
    }
}

QHash<int, QByteArray> TQORTapeModel::roleNames() const
{
    return {{TextRole, "display"},
            {NumberRole, "number"},
            {OperatorRole, "operator"},
            {KindRole, "kind"},
            {NumberTextRole, "numberText"}};
}

QString TQORTapeModel::ToText() const { return ToQString(TapeToText(rows_)); }

QString TQORTapeModel::ToCsv() const { return ToQString(TapeToCsv(rows_)); }

void TQORTapeModel::CopyToClipboard() const
{
    auto* mime = new QMimeData;
    mime->setText(ToText());
    mime->setData(QStringLiteral("text/csv"), ToCsv().toUtf8());
    QGuiApplication::clipboard()->setMimeData(mime);
}

bool TQORTapeModel::SaveToFile(const QString& fileName) const
{
    QFile file(fileName);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate))
        return false;
    const bool csv = fileName.endsWith(QStringLiteral(".csv"), Qt::CaseInsensitive);
    const QByteArray bytes = (csv ? ToCsv() : ToText()).toUtf8();
    return file.write(bytes) == bytes.size();
}

void TQORTapeModel::ScheduleSync()
{
    if (syncPending_)
        return;
    syncPending_ = true;
    QTimer::singleShot(0, this, [this] {
        syncPending_ = false;
        Sync();
    });
}

void TQORTapeModel::Sync()
{
    std::vector<std::string> lines = lines_();
    // New lines only when what was seen is still the start of the tape.
    const bool grown
        = lines.size() >= seen_.size() && std::equal(seen_.begin(), seen_.end(), lines.begin());
    if (!grown) {
        seen_ = std::move(lines);
        Reset();
        return;
    }
    if (lines.size() == seen_.size())
        return;
    const int first = GetCount();
    const int last = static_cast<int>(lines.size()) - 1;
    beginInsertRows(QModelIndex(), first, last);
    for (std::size_t i = seen_.size(); i < lines.size(); ++i)
        rows_.push_back(reader_.Read(lines[i]));
    seen_ = std::move(lines);
    endInsertRows();
    Q_EMIT countChanged();
}

void TQORTapeModel::Reset()
{
    const int before = GetCount();
    beginResetModel();
    reader_ = makeReader_();
    rows_.clear();
    for (const auto& line : seen_)
        rows_.push_back(reader_.Read(line));
    endResetModel();
    if (GetCount() != before)
        Q_EMIT countChanged();
}

} // namespace qorkit
