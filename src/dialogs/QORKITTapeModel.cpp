#include "QORKITTapeModel.h"

#include "QORKITTranslation.h"

#include <QClipboard>
#include <QFile>
#include <QGuiApplication>
#include <QMimeData>
#include <QTimer>

#include <type_traits>

namespace qorkit {

TQORTapeModel::TQORTapeModel(TQORCalcEngineObject& front, QObject* parent)
    : QAbstractListModel(parent)
{
    Follow(front);
}

TQORTapeModel::TQORTapeModel(TQORProgCalcEngineObject& front, QObject* parent)
    : QAbstractListModel(parent)
{
    Follow(front);
}

TQORTapeModel::TQORTapeModel(TQORCalcEngine& engine, QObject* parent) : QAbstractListModel(parent)
{
    FollowEngine<TQORCalcEngineObject>(engine);
}

TQORTapeModel::TQORTapeModel(IQORProgCalcEngine& engine, QObject* parent)
    : QAbstractListModel(parent)
{
    FollowEngine<TQORProgCalcEngineObject>(engine);
}

TQORTapeModel::~TQORTapeModel() = default;

template<class Front> void TQORTapeModel::Follow(Front& front)
{
    front_ = &front;
    readTape_ = [&front]() -> const QStringList& { return front.ReadTape(); };
    generation_ = [&front] { return front.GetTapeGeneration(); };
    if constexpr (std::is_same_v<Front, TQORProgCalcEngineObject>)
        makeReader_
            = [&front] { return ProgTapeReader(front.GetBaseDisplay(), front.GetBitSize()); };
    else
        makeReader_ = [] { return TQORTapeReader(); };
    connect(&front, &Front::historyChange, this, &TQORTapeModel::Sync);
    // Other tape changes (an all-clear emptied it, a base change rewrote it) are picked up once
    // the key is done.
    connect(&front, &Front::tapeChanged, this, &TQORTapeModel::ScheduleSync);
    seenGeneration_ = -1;
    Sync();
}

template<class Front, class Engine> void TQORTapeModel::FollowEngine(Engine& engine)
{
    Front* front = Front::FrontOf(engine);
    if (!front) {
        front = new Front(engine, this);
    } else if (!front->GetOwnsEngine()) {
        // Somebody else's front of a host's engine: when it goes, follow through another.
        connect(front, &QObject::destroyed, this, [this, &engine] { FollowEngine<Front>(engine); });
    }
    Follow(*front);
}

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
    if (!front_)
        return;
    const QStringList& lines = readTape_();
    if (const int generation = generation_(); generation != seenGeneration_) {
        seenGeneration_ = generation;
        Reset(lines);
        return;
    }
    const int first = GetCount();
    const auto total = static_cast<int>(lines.size());
    if (total <= first)
        return;
    beginInsertRows(QModelIndex(), first, total - 1);
    for (int i = first; i < total; ++i)
        rows_.push_back(reader_.Read(lines[i].toStdString()));
    endInsertRows();
    Q_EMIT countChanged();
}

void TQORTapeModel::Reset(const QStringList& lines)
{
    const int before = GetCount();
    beginResetModel();
    reader_ = makeReader_();
    rows_.clear();
    rows_.reserve(static_cast<std::size_t>(lines.size()));
    for (const auto& line : lines)
        rows_.push_back(reader_.Read(line.toStdString()));
    endResetModel();
    if (GetCount() != before)
        Q_EMIT countChanged();
}

} // namespace qorkit
