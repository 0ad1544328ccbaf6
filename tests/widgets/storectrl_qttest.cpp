// The settings store: round trips through real files for both store kinds, defaults for
// missing or unreadable keys, sections, a failed write that leaves the old file intact, and
// components that outlive the store they refer to.
#include "QORKITStoreCtrl.h"
#include "QorkitTestSupport.h"

#include <QDir>
#include <QFile>
#include <QPointer>
#include <QSettings>
#include <QSignalSpy>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <cfloat>
#include <csignal>
#include <sys/resource.h>

namespace qorkit {
namespace {

class StoreCtrlTest : public test::GlobalStateTest {
protected:
    void SetUp() override
    {
        GlobalStateTest::SetUp();
        ASSERT_TRUE(dir_.isValid());
        // The native store of this platform goes to the temporary folder too.
        QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, dir_.path());
        QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, dir_.path());
    }
    QString IniPath() const { return dir_.filePath(QStringLiteral("store.ini")); }
    void SetUpStore(TQORStoreCtrl& store, TQORRegIniType kind) const
    {
        store.SetRegIniType(kind);
        store.SetIniFileName(IniPath());
        store.SetRegPath(QStringLiteral("Software\\QorkitTests/Store"));
    }

    void WriteFile(const QString& path, const QByteArray& contents) const
    {
        QDir().mkpath(QFileInfo(path).absolutePath());
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(contents);
    }
    // As a std::string, so that a difference prints readably.
    std::string ReadFile(const QString& path) const
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll().toStdString() : std::string();
    }

    QTemporaryDir dir_;
};

class StoreKindTest : public StoreCtrlTest,
                      public ::testing::WithParamInterface<TQORRegIniType> { };

TEST_P(StoreKindTest, EveryTypedValueSurvivesAFreshStore)
{
    {
        TQORStoreCtrl store;
        SetUpStore(store, GetParam());
        ASSERT_TRUE(store.OpenStorage(QStringLiteral("Calc")));
        store.WriteBoolean(QStringLiteral("Radians"), false);
        store.WriteInteger(QStringLiteral("Decimal Places"), -7);
        store.WriteInt64(QStringLiteral("Prog Memory"), INT64_MIN);
        store.WriteFloat(QStringLiteral("Memory"), 0.1);
        store.WriteExtended(QStringLiteral("Exact"), 1.0L / 3.0L);
        store.WriteString(QStringLiteral("DispFont"), QStringLiteral("Courier New,12 °"));
        EXPECT_TRUE(store.CloseStorage());
    }
    TQORStoreCtrl store;
    SetUpStore(store, GetParam());
    ASSERT_TRUE(store.OpenStorage(QStringLiteral("Calc")));
    EXPECT_FALSE(store.ReadBoolean(QStringLiteral("Radians"), true));
    EXPECT_EQ(store.ReadInteger(QStringLiteral("Decimal Places"), 0), -7);
    EXPECT_EQ(store.ReadInt64(QStringLiteral("Prog Memory"), 0), INT64_MIN);
    EXPECT_EQ(store.ReadFloat(QStringLiteral("Memory"), 0), 0.1);
    EXPECT_EQ(store.ReadExtended(QStringLiteral("Exact"), 0), 1.0L / 3.0L);
    EXPECT_EQ(store.ReadString(QStringLiteral("DispFont"), {}), QStringLiteral("Courier New,12 °"));
    // Missing keys give the caller's default.
    EXPECT_TRUE(store.ReadBoolean(QStringLiteral("Stay On Top"), true));
    EXPECT_EQ(store.ReadExtended(QStringLiteral("Nothing"), 2.5L), 2.5L);
    store.CloseStorage();

    // The same keys in another section are not there.
    ASSERT_TRUE(store.OpenStorage(QStringLiteral("Other")));
    EXPECT_EQ(store.ReadInteger(QStringLiteral("Decimal Places"), 4), 4);
    store.CloseStorage();
}

TEST_P(StoreKindTest, NestedOpenReturnsToTheOuterSection)
{
    TQORStoreCtrl store;
    SetUpStore(store, GetParam());
    ASSERT_TRUE(store.OpenStorage(QStringLiteral("Outer")));
    ASSERT_TRUE(store.OpenStorage(QStringLiteral("Inner")));
    store.WriteInteger(QStringLiteral("Key"), 2);
    store.CloseStorage();
    store.WriteInteger(QStringLiteral("Key"), 1);
    EXPECT_TRUE(store.CloseStorage());
    EXPECT_FALSE(store.IsOpen());
    EXPECT_TRUE(store.OpenStorage(QStringLiteral("Inner")));
    EXPECT_EQ(store.ReadInteger(QStringLiteral("Key"), 0), 2);
    store.CloseStorage();
    // Reads without an explicit open use the store's own section.
    store.SetSection(QStringLiteral("Outer"));
    EXPECT_EQ(store.ReadInteger(QStringLiteral("Key"), 0), 1);
    EXPECT_FALSE(store.IsOpen());
}

INSTANTIATE_TEST_SUITE_P(Kinds, StoreKindTest, ::testing::Values(ritRegistry, ritIniFile),
                         [](const auto& row) {
                             return std::string(row.param == ritRegistry ? "NativeStore"
                                                                         : "IniFile");
                         });

TEST_F(StoreCtrlTest, NativeStoreLandsUnderTheKeyPath)
{
    TQORStoreCtrl store;
    SetUpStore(store, ritRegistry);
    store.WriteBoolean(QStringLiteral("Flag"), true);
#ifndef Q_OS_WIN
    EXPECT_TRUE(QFile::exists(dir_.filePath(QStringLiteral("Software/QorkitTests/Store.conf"))));
#endif
    EXPECT_FALSE(QFile::exists(IniPath()));
}

TEST_F(StoreCtrlTest, NoStorageOrMissingNamesReadDefaultsAndWriteNothing)
{
    TQORStoreCtrl none;
    SetUpStore(none, ritNone);
    TQORStoreCtrl noFile;
    noFile.SetRegIniType(ritIniFile);
    TQORStoreCtrl noPath;
    noPath.SetRegIniType(ritRegistry);
    noPath.SetRegPath(QStringLiteral("\\/"));
    for (TQORStoreCtrl* store : {&none, &noFile, &noPath}) {
        EXPECT_FALSE(store->OpenStorage());
        store->WriteInteger(QStringLiteral("Key"), 5);
        EXPECT_EQ(store->ReadInteger(QStringLiteral("Key"), 9), 9);
        EXPECT_FALSE(store->CloseStorage());
    }
    EXPECT_TRUE(QDir(dir_.path()).isEmpty());
}

TEST_F(StoreCtrlTest, HandWrittenAndOutOfRangeValues)
{
    QFile file(IniPath());
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("[Settings]\nOne=1\nZero=0\nWord=maybe\nBig=99999999999\nNum=abc\nInf=inf\n");
    file.close();
    TQORStoreCtrl store;
    SetUpStore(store, ritIniFile);
    EXPECT_TRUE(store.ReadBoolean(QStringLiteral("One"), false));
    EXPECT_FALSE(store.ReadBoolean(QStringLiteral("Zero"), true));
    EXPECT_TRUE(store.ReadBoolean(QStringLiteral("Word"), true));
    EXPECT_EQ(store.ReadInteger(QStringLiteral("Big"), 3), 3);
    EXPECT_EQ(store.ReadInt64(QStringLiteral("Big"), 3), 99999999999);
    EXPECT_EQ(store.ReadFloat(QStringLiteral("Num"), 1.5), 1.5);
    EXPECT_EQ(store.ReadFloat(QStringLiteral("Inf"), 1.5), 1.5);
    EXPECT_EQ(store.ReadExtended(QStringLiteral("Inf"), 1.5L), 1.5L);

    // Values a double cannot hold are written as the largest finite one, never as "inf".
    store.WriteFloat(QStringLiteral("Huge"), -HUGE_VAL);
    EXPECT_EQ(store.ReadFloat(QStringLiteral("Huge"), 0), -DBL_MAX);
    store.WriteExtended(QStringLiteral("HugeX"), HUGE_VALL);
    EXPECT_EQ(store.ReadExtended(QStringLiteral("HugeX"), 0), LDBL_MAX);
}

TEST_F(StoreCtrlTest, AFailedWriteLeavesTheOldFileReadable)
{
    TQORStoreCtrl store;
    SetUpStore(store, ritIniFile);
    store.WriteString(QStringLiteral("Key"), QStringLiteral("old"));
    const qint64 oldSize = QFileInfo(IniPath()).size();
    ASSERT_GT(oldSize, 0);

    // A file-size limit makes the next write run out of room, as a full disk would.
    rlimit saved {};
    ASSERT_EQ(getrlimit(RLIMIT_FSIZE, &saved), 0);
    const auto oldHandler = std::signal(SIGXFSZ, SIG_IGN);
    rlimit tight = saved;
    tight.rlim_cur = 1024; // room for the lock file, not for the new contents
    ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &tight), 0);
    QSignalSpy errors(&store, &TQORStoreCtrl::errorOccurred);
    store.OpenStorage();
    store.WriteString(QStringLiteral("Key"), QString(4096, QLatin1Char('x')));
    const bool written = store.CloseStorage();
    EXPECT_EQ(errors.count(), 1);
    setrlimit(RLIMIT_FSIZE, &saved);
    std::signal(SIGXFSZ, oldHandler);

    EXPECT_FALSE(written);
    EXPECT_NE(store.GetStatus(), QSettings::NoError);
    EXPECT_FALSE(store.GetErrorString().isEmpty());
    EXPECT_EQ(QFileInfo(IniPath()).size(), oldSize);
    TQORStoreCtrl reader;
    SetUpStore(reader, ritIniFile);
    EXPECT_EQ(reader.ReadString(QStringLiteral("Key"), {}), QStringLiteral("old"));
    EXPECT_EQ(QDir(dir_.path()).entryList(QDir::Files).size(), 1);
}

TEST_F(StoreCtrlTest, IniNamesAreWrittenAsGivenAndOtherLinesStay)
{
    // Everything a person or another program may have put in the file.
    const QByteArray handWritten = QByteArray("# settings of the host\n"
                                              "[Std Calc]\n"
                                              "Decimal Places = 3\n"
                                              "a line without equals\n"
                                              "\n"
                                              "[Host]\n"
                                              "Window=1,2\n")
        + QByteArray("\x01\xff junk") + "\n[Cut";
    WriteFile(IniPath(), handWritten);
    TQORStoreCtrl store;
    SetUpStore(store, ritIniFile);
    ASSERT_TRUE(store.OpenStorage(QStringLiteral("Std Calc")));
    EXPECT_EQ(store.ReadInteger(QStringLiteral("Decimal Places"), 0), 3);
    store.WriteInteger(QStringLiteral("Decimal Places"), 2);
    store.WriteBoolean(QStringLiteral("Stay On Top"), true);
    ASSERT_TRUE(store.OpenStorage(QStringLiteral("Calc Settings")));
    store.WriteExtended(QStringLiteral("Memory"), -0.5L);
    EXPECT_TRUE(store.CloseStorage());
    EXPECT_TRUE(store.CloseStorage());
    EXPECT_EQ(store.GetStatus(), QSettings::NoError);

    EXPECT_EQ(ReadFile(IniPath()),
              (QByteArray("# settings of the host\n"
                          "[Std Calc]\n"
                          "Decimal Places=2\n"
                          "Stay On Top=true\n" // after the section's last key
                          "a line without equals\n"
                          "\n"
                          "[Host]\n"
                          "Window=1,2\n")
               + QByteArray("\x01\xff junk") + "\n[Cut\n\n[Calc Settings]\nMemory=-0.5\n")
                  .toStdString());
}

TEST_F(StoreCtrlTest, ChangesMadeMeanwhileByOthersStay)
{
    TQORStoreCtrl store;
    SetUpStore(store, ritIniFile);
    ASSERT_TRUE(store.OpenStorage());
    store.WriteString(QStringLiteral("Mine"), QStringLiteral("1"));
    WriteFile(IniPath(), "[Theirs]\nKey=2\n");
    EXPECT_TRUE(store.CloseStorage());
    EXPECT_EQ(ReadFile(IniPath()), "[Theirs]\nKey=2\n\n[Settings]\nMine=1\n");
}

TEST_F(StoreCtrlTest, NamesAnIniFileCannotHoldAreReported)
{
    TQORStoreCtrl store;
    SetUpStore(store, ritIniFile);
    QSignalSpy errors(&store, &TQORStoreCtrl::errorOccurred);
    ASSERT_TRUE(store.OpenStorage(QStringLiteral("Calc")));
    store.WriteString(QStringLiteral("A=B"), QStringLiteral("x"));
    store.WriteString(QStringLiteral("Good"), QStringLiteral("y"));
    EXPECT_FALSE(store.CloseStorage());
    EXPECT_EQ(store.GetStatus(), QSettings::FormatError);
    EXPECT_TRUE(store.GetErrorString().contains(QStringLiteral("A=B")));
    EXPECT_EQ(errors.count(), 1);
    EXPECT_EQ(ReadFile(IniPath()), "[Calc]\nGood=y\n");
}

TEST_F(StoreCtrlTest, KeyPathsThatClimbOutAreRefused)
{
    for (const char* path : {"..", "Software/../../Elsewhere", "..\\Up\\App", "A/../B"}) {
        TQORStoreCtrl store;
        store.SetRegIniType(ritRegistry);
        store.SetRegPath(QString::fromLatin1(path));
        QSignalSpy errors(&store, &TQORStoreCtrl::errorOccurred);
        EXPECT_FALSE(store.OpenStorage()) << path;
        store.WriteBoolean(QStringLiteral("Flag"), true);
        EXPECT_EQ(store.GetStatus(), QSettings::AccessError) << path;
        EXPECT_TRUE(store.GetErrorString().contains(QStringLiteral("\"..\""))) << path;
        EXPECT_GE(errors.count(), 1) << path;
    }
    // Nothing was written anywhere, inside the settings folder or above it.
    EXPECT_TRUE(QDir(dir_.path()).isEmpty());
    EXPECT_FALSE(QFile::exists(dir_.filePath(QStringLiteral("../Elsewhere.conf"))));
    EXPECT_FALSE(QFile::exists(dir_.filePath(QStringLiteral("../Up/App.conf"))));
    // Names that only look alike are fine.
    TQORStoreCtrl dots;
    dots.SetRegIniType(ritRegistry);
    dots.SetRegPath(QStringLiteral("Software/...Dots/..App"));
    EXPECT_TRUE(dots.OpenStorage());
    dots.CloseStorage();
}

TEST_P(StoreKindTest, SerializedVariantsAreJunk)
{
    // The settings layer's own serialized form must not turn into a number.
    const QByteArray junk = "Memory=@Variant(\\0\\0\\0\\x87?\\x80\\0\\0)\n"
                            "Big=@Variant(\\0\\0\\0\\x6@\\x14\\0\\0\\0\\0\\0\\0)\n"
                            "Flag=@Variant(\\0\\0\\0\\x1\\x1)\n";
    const QString file = GetParam() == ritIniFile
        ? IniPath()
        : dir_.filePath(QStringLiteral("Software/QorkitTests/Store.conf"));
    WriteFile(file, "[Calc]\n" + junk);
    TQORStoreCtrl store;
    SetUpStore(store, GetParam());
    ASSERT_TRUE(store.OpenStorage(QStringLiteral("Calc")));
    EXPECT_EQ(store.ReadExtended(QStringLiteral("Memory"), 7.25L), 7.25L);
    EXPECT_EQ(store.ReadFloat(QStringLiteral("Memory"), 7.5), 7.5);
    EXPECT_EQ(store.ReadInt64(QStringLiteral("Big"), 9), 9);
    EXPECT_TRUE(store.ReadBoolean(QStringLiteral("Flag"), true));
    EXPECT_FALSE(store.ReadBoolean(QStringLiteral("Flag"), false));
    store.CloseStorage();
}

// A component that refers to a store the way the convertors and calculators do.
class StoreUser : public QObject, public IQORNotifyClient {
public:
    explicit StoreUser(TQORStoreCtrl* store) { SetStore(store); }
    ~StoreUser() override { SetStore(nullptr); }
    void SetStore(TQORStoreCtrl* store)
    {
        if (store_ == store)
            return;
        if (store_)
            store_->RemoveFromNotifyList(this);
        store_ = store;
        if (store_)
            store_->AddToNotifyList(this);
    }
    void Notification(QObject* component, TQOROperation operation) override
    {
        ++notices;
        if (operation == opRemove && component == store_.data())
            SetStore(nullptr);
    }
    QPointer<TQORStoreCtrl> store_;
    int notices = 0;
};

TEST_F(StoreCtrlTest, StoreDestroyedBeforeItsUsers)
{
    auto* store = new TQORStoreCtrl;
    StoreUser first(store);
    StoreUser second(store);
    QObject bystander; // registered, but not a notify client: skipped, not called
    store->AddToNotifyList(&bystander);
    {
        StoreUser gone(store);
    } // a user destroyed first unregisters itself
    delete store;
    EXPECT_EQ(first.notices, 1);
    EXPECT_EQ(second.notices, 1);
    EXPECT_TRUE(first.store_.isNull());
    EXPECT_TRUE(second.store_.isNull());
}

TEST_F(StoreCtrlTest, UsersDestroyedWithoutUnregisteringAreSkipped)
{
    TQORStoreCtrl store;
    auto* user = new StoreUser(&store);
    EXPECT_TRUE(store.IsInNotifyList(user));
    user->store_ = nullptr; // forgets to unregister
    delete user;
    StoreUser later(&store);
    EXPECT_TRUE(store.IsInNotifyList(&later));
    later.SetStore(nullptr);
    EXPECT_FALSE(store.IsInNotifyList(&later));
}

} // namespace
} // namespace qorkit
