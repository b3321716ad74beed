#include "HostUi/UiTreeWriter.h"

#include "HostUi/UiHost.h"
#include "Support/FileBytes.h"
#include "Support/JsonValues.h"
#include "Support/TestValues.h"

#include <nlohmann/json.hpp>

#include <QAction>
#include <QButtonGroup>
#include <QDir>
#include <QEventLoop>
#include <QFile>
#include <QHBoxLayout>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTimer>

#include <initializer_list>
#include <memory>

using namespace vesk;

/// Counts how often the maximum delay runs out after which a change is written.
class LateWrites final : public QObject
{
public:
    static constexpr int Time = 150;

    LateWrites() { qApp->installEventFilter(this); }

    int count = 0;

protected:
    bool eventFilter(QObject* pWatched, QEvent* pEvent) override
    {
        const auto* pTimer = qobject_cast<QTimer*>(pWatched);
        const bool isTime = pEvent->type() == QEvent::Timer && pTimer != nullptr;
        count += isTime && pTimer->interval() == Time ? 1 : 0;
        return false;
    }
};

/// Counts the user events that it receives.
class UserEventCounter final : public QObject
{
public:
    int count = 0;

    bool event(QEvent* pEvent) override
    {
        count += pEvent->type() == QEvent::User ? 1 : 0;
        return QObject::event(pEvent);
    }
};

/// A window with a button that represents a definition, and the file that describes it.
class UiTreeWriterTest final : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_pHost = std::make_unique<test::UiHost>();
        auto* pLayout = new QHBoxLayout(&m_pHost->window);
        m_pButton = new QPushButton(QStringLiteral("直线"));
        m_pButton->setObjectName(QStringLiteral("Line"));
        m_pButton->setProperty("IsDefinition", true);
        pLayout->addWidget(m_pButton);
        pLayout->addWidget(new QLabel(QStringLiteral("not a definition")));
        m_pHost->window.show();
        m_pWriter = std::make_unique<UiTreeWriter>(m_folder.filePath("ui"), m_pHost->input,
                                                   [this] { return m_entityCount; });
    }

    void cleanup()
    {
        m_pWriter.reset();
        m_pHost.reset();
    }

    void onlyDefinitionsAreTold()
    {
        QVERIFY(m_pWriter->Write());

        const nlohmann::json tree = Read();
        QCOMPARE(tree["controls"].size(), std::size_t(1));
        const nlohmann::json& control = tree["controls"][0];
        QCOMPARE(control["id"], std::string("Line"));
        QCOMPARE(control["class"], std::string("QPushButton"));
        QCOMPARE(control["text"], std::string("直线"));
        QCOMPARE(control["visible"], true);
        QCOMPARE(control["enabled"], true);
        QVERIFY(control["checked"].is_null());
        const QPoint corner = m_pButton->mapToGlobal(QPoint(0, 0));
        const nlohmann::json rect{corner.x(), corner.y(), m_pButton->width(), m_pButton->height()};
        QCOMPARE(control["rect"], rect);
        QVERIFY(tree["editor"].is_null());
        QVERIFY(tree["action"].is_null());
    }

    void actionsHaveNoRectangle()
    {
        auto* pAction = new QAction(QStringLiteral("item"), m_pButton);
        pAction->setProperty("IsDefinition", true);
        pAction->setCheckable(true);

        QVERIFY(m_pWriter->Write());

        const nlohmann::json control = Read()["controls"][1];
        QVERIFY(control["rect"].is_null());
        QCOMPARE(control["checked"], false);
        QCOMPARE(control["id"], std::string(""));
    }

    void hiddenAndDisabledControlsAreToldSo()
    {
        m_pButton->setEnabled(false);
        m_pButton->hide();

        QVERIFY(m_pWriter->Write());

        QCOMPARE(Read()["controls"][0]["visible"], false);
        QCOMPARE(Read()["controls"][0]["enabled"], false);
    }

    void groupIsDisabledWithWhatHoldsIt()
    {
        auto* pGroup = new QButtonGroup(m_pButton);
        pGroup->setProperty("IsDefinition", true);
        QVERIFY(m_pWriter->Write());
        QCOMPARE(Read()["controls"][1]["enabled"], true);

        m_pButton->setEnabled(false);
        QVERIFY(m_pWriter->Write());

        QCOMPARE(Read()["controls"][1]["enabled"], false);
    }

    void entryOfAnOpenMenuHasItsPlace()
    {
        const MenuFixture f(*m_pButton);
        f.pMenu->popup(QPoint(10, 20));

        QVERIFY(m_pWriter->Write());

        const nlohmann::json entry = Find("Zoom.In");
        const QRect place = f.pMenu->actionGeometry(f.pEntry);
        const QPoint corner = f.pMenu->mapToGlobal(place.topLeft());
        QCOMPARE(entry["visible"], true);
        QCOMPARE(entry["rect"],
                 (nlohmann::json{corner.x(), corner.y(), place.width(), place.height()}));
    }

    void entryOfAClosedMenuHasNone()
    {
        const MenuFixture f(*m_pButton);

        QVERIFY(m_pWriter->Write());

        QCOMPARE(Find("Zoom.In")["visible"], false);
        QVERIFY(Find("Zoom.In")["rect"].is_null());
        QVERIFY(Find("Scales")["rect"].is_null());
    }

    void closedSubMenuIsWhereItsEntryIs()
    {
        const MenuFixture f(*m_pButton);
        f.pMenu->popup(QPoint(10, 20));

        QVERIFY(m_pWriter->Write());

        const QRect place = f.pMenu->actionGeometry(f.pSubMenu->menuAction());
        const QPoint corner = f.pMenu->mapToGlobal(place.topLeft());
        QCOMPARE(Find("Scales")["visible"], true);
        QCOMPARE(Find("Scales")["rect"],
                 (nlohmann::json{corner.x(), corner.y(), place.width(), place.height()}));
    }

    void menuIsDisabledWithItsButton()
    {
        const MenuFixture f(*m_pButton);
        m_pHost->window.setEnabled(false);

        QVERIFY(m_pWriter->Write());

        QCOMPARE(Find("Menu")["enabled"], false);
        QCOMPARE(Find("Scales")["enabled"], false);
        QCOMPARE(Find("Zoom.In")["enabled"], false);
    }

    void changeIsWrittenWhenTheLoopIsIdle()
    {
        QVERIFY(m_pWriter->Write());

        m_pButton->setText(QStringLiteral("changed"));

        QTRY_COMPARE(QString::fromStdString(Read()["controls"][0]["text"]),
                     QStringLiteral("changed"));
    }

    void changeIsWrittenWithinItsTimeInABusyNestedLoop()
    {
        QVERIFY(m_pWriter->Write());
        QEventLoop nested;
        QTimer busy;
        connect(&busy, &QTimer::timeout, this,
                [&] { QCoreApplication::postEvent(m_pButton, new QEvent(QEvent::User)); });
        busy.start(0);
        QTimer::singleShot(20, this, [&] {
            m_entityCount = 5;
            // Timers fire in order of their times, however busy the machine is.
            QTimer::singleShot(200, Qt::PreciseTimer, &nested, &QEventLoop::quit);
        });

        nested.exec();

        QCOMPARE(int(Read()["entities"]), 5);
    }

    void theEventThatWakesItIsDelivered()
    {
        QVERIFY(m_pWriter->Write());
        QEvent event(QEvent::User);
        UserEventCounter counter;

        QCoreApplication::sendEvent(&counter, &event);
        QCoreApplication::sendEvent(&counter, &event);

        QCOMPARE(counter.count, 2);
    }

    /// Only a loop that never rests waits for the longer of the two times.
    void anIdleLoopIsNotKeptAwake()
    {
        QVERIFY(m_pWriter->Write());
        const LateWrites late;

        m_pButton->setText(QStringLiteral("changed"));
        QTRY_COMPARE(QString::fromStdString(Read()["controls"][0]["text"]),
                     QStringLiteral("changed"));
        QTest::qWait(2 * LateWrites::Time);

        QCOMPARE(late.count, 0);
    }

    /// People read it, and compare it line by line.
    void eachValueHasAnIndentedLine()
    {
        QVERIFY(m_pWriter->Write());

        QVERIFY(Text().split('\n').contains(" \"action\": null,"));
    }

    void whatIsTheSameIsNotWrittenAgain()
    {
        QVERIFY(m_pWriter->Write());
        QVERIFY(WriteBytes(m_folder.filePath("ui"), "mark"));

        QVERIFY(m_pWriter->Write());
        QCOMPARE(Text(), QByteArray("mark"));

        m_entityCount = 8;
        QVERIFY(m_pWriter->Write());
        QCOMPARE(int(Read()["entities"]), 8);
    }

    void whatCouldNotBeWrittenIsTriedAgain()
    {
        const QString path = m_folder.filePath("later/ui");
        UiTreeWriter writer(path, m_pHost->input, [] { return 0; });
        QVERIFY(!writer.Write());

        QVERIFY(QDir(m_folder.path()).mkdir("later"));

        QVERIFY(writer.Write());
        QVERIFY(QFile::exists(path));
    }

    void fileThatCannotBeWrittenIsToldSo()
    {
        UiTreeWriter writer(QStringLiteral("/nonexistent/ui"), m_pHost->input, [] { return 0; });

        QVERIFY(!writer.Write());
    }

private:
    /// The menu of a button, with an entry and a sub-menu, all of them definitions.
    struct MenuFixture
    {
        explicit MenuFixture(QPushButton& button)
            : pMenu(new QMenu(&button)), pSubMenu(pMenu->addMenu(QStringLiteral("比例"))),
              pEntry(pMenu->addAction(QStringLiteral("放大")))
        {
            pMenu->setObjectName(QStringLiteral("Menu"));
            pSubMenu->setObjectName(QStringLiteral("Scales"));
            pEntry->setProperty("CommandId", QStringLiteral("Zoom.In"));
            for (QObject* pObject : std::initializer_list<QObject*>{pMenu, pSubMenu, pEntry})
                pObject->setProperty("IsDefinition", true);
        }

        QMenu* pMenu;
        QMenu* pSubMenu;
        QAction* pEntry;
    };

    nlohmann::json Find(const char* id) const
    {
        const nlohmann::json tree = Read();
        for (const nlohmann::json& control : tree["controls"])
        {
            if (control["id"] == id)
                return control;
        }
        return {};
    }

    QByteArray Text() const { return ReadBytes(m_folder.filePath("ui")); }

    nlohmann::json Read() const
    {
        const QByteArray text = Text();
        return text.isEmpty() ? nlohmann::json() : nlohmann::json::parse(text.toStdString());
    }

    QTemporaryDir m_folder;
    int m_entityCount = 0;
    std::unique_ptr<test::UiHost> m_pHost;
    QPushButton* m_pButton = nullptr;
    std::unique_ptr<UiTreeWriter> m_pWriter;
};

VESK_TESTS(UiTreeWriterTest);
#include "UiTreeWriterTest.moc"
