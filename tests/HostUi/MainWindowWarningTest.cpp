#include "HostUi/MainWindow.h"

#include "Control/NqUiInterfaceFactory.h"
#include "Foundation/DebugMessageMgr.h"
#include "Foundation/IDebugWarningDisplayer.h"
#include "Support/TestValues.h"

#include <QLabel>
#include <QTemporaryDir>

#include <functional>
#include <thread>
#include <utility>

namespace vesk
{
namespace
{

DebugMessageMgr& Manager()
{
    return *DebugMessageMgr::GetDebugMessageMgr();
}

void Warn(int line)
{
    Manager().ShowDebugWarn("File.cpp", line, "vesk::F::G", L"message", L"vesk-ui", L"2026-11-21");
}

/// A user who leaves the dialog after something has happened behind it.
class Factory final : public NqUiInterfaceFactory
{
public:
    Factory() { m_pFactory = this; }

    IPropertyWidget* GetPropertyWidget() override { return nullptr; }

    OwnerPtr<IDebugWarningDialogDisplayer> CreateDebugWarningDialogDisplayer() override
    {
        return MakeOwner<Displayer>(*this);
    }

    std::function<void()> whileShown;

private:
    class Displayer final : public IDebugWarningDialogDisplayer
    {
    public:
        explicit Displayer(Factory& factory) : m_factory(factory) {}

        bool Display(const std::string&, int, const std::string&, const std::wstring&,
                     const std::wstring&, const std::wstring&) override
        {
            if (m_factory.whileShown)
                std::exchange(m_factory.whileShown, nullptr)();
            return true;
        }

    private:
        Factory& m_factory;
    };
};

struct Fixture
{
    Fixture()
    {
        Manager().Reset();
        Manager().SetAttended(true);
    }

    ~Fixture()
    {
        Manager().CloseLog();
        Manager().Reset();
    }

    const QLabel& Count() const { return *window.findChild<QLabel*>("WarningCount"); }

    Factory factory;
    MainWindow window;
};

}

/// What the status bar tells of warnings that nobody has seen.
class MainWindowWarningTest : public QObject
{
    Q_OBJECT

private slots:
    void aWarningThatWasShownIsNotCounted();
    void warningsThatWereNotShownAreCounted();
    void warningsOfAnotherThreadAreCounted();
    void theTipTellsWhereTheLogIs();
    void withoutALogTheTipNamesStandardError();
};

void MainWindowWarningTest::aWarningThatWasShownIsNotCounted()
{
    Fixture f;

    Warn(1);
    QCoreApplication::sendPostedEvents();

    QVERIFY(f.Count().isHidden());
}

void MainWindowWarningTest::warningsThatWereNotShownAreCounted()
{
    Fixture f;
    f.factory.whileShown = [] {
        Warn(2);
        Warn(2);
    };

    Warn(1);
    QCoreApplication::sendPostedEvents();
    QVERIFY(!f.Count().isHidden());
    QCOMPARE(f.Count().text(), QString::fromUtf8("未显示的警告：2"));

    f.factory.whileShown = [] { Warn(4); };
    Warn(3);
    QCoreApplication::sendPostedEvents();
    QCOMPARE(f.Count().text(), QString::fromUtf8("未显示的警告：3"));
}

void MainWindowWarningTest::warningsOfAnotherThreadAreCounted()
{
    Fixture f;
    f.factory.whileShown = [] { std::thread([] { Warn(2); }).join(); };

    Warn(1);
    QVERIFY(f.Count().text().isEmpty());
    QCoreApplication::sendPostedEvents();

    QCOMPARE(f.Count().text(), QString::fromUtf8("未显示的警告：1"));
}

void MainWindowWarningTest::theTipTellsWhereTheLogIs()
{
    Fixture f;
    const QTemporaryDir folder;
    const QString path = folder.filePath(QString::fromUtf8("警告.log"));
    Manager().OpenLog(path.toStdString());
    f.factory.whileShown = [] { Warn(2); };

    Warn(1);
    QCoreApplication::sendPostedEvents();

    QCOMPARE(f.Count().toolTip(), QString::fromUtf8("对话框打开时发生的警告，见日志：") +
                                      QDir::toNativeSeparators(path));
}

void MainWindowWarningTest::withoutALogTheTipNamesStandardError()
{
    Fixture f;
    f.factory.whileShown = [] { Warn(2); };

    Warn(1);
    QCoreApplication::sendPostedEvents();

    QCOMPARE(f.Count().toolTip(), QString::fromUtf8("对话框打开时发生的警告，见标准错误输出"));
}

}

QTEST_MAIN(vesk::MainWindowWarningTest)
#include "MainWindowWarningTest.moc"
