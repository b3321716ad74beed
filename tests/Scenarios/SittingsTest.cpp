#include "Drawing.h"
#include "RandomUser.h"
#include "ScenarioFixture.h"
#include "ScriptedUser.h"
#include "Session.h"
#include "SittingWatch.h"
#include "Support/TestValues.h"

#include <iostream>
#include <sstream>
#include <streambuf>

namespace
{

/// Collects the messages of Qt and of the program during its lifetime.
class Listener
{
public:
    Listener() : m_streamBefore(std::cerr.rdbuf(m_stream.rdbuf()))
    {
        s_messages.clear();
        m_handlerBefore = qInstallMessageHandler(&Listener::Note);
    }

    ~Listener()
    {
        qInstallMessageHandler(m_handlerBefore);
        std::cerr.rdbuf(m_streamBefore);
    }

    Listener(const Listener&) = delete;
    Listener& operator=(const Listener&) = delete;

    QStringList GetHeard() const
    {
        const QString complaints = QString::fromStdString(m_stream.str());
        return complaints.isEmpty() ? s_messages : s_messages + QStringList(complaints);
    }

private:
    static void Note(QtMsgType type, const QMessageLogContext&, const QString& message)
    {
        if (type != QtDebugMsg && !IsOfTheToolkit(message))
            s_messages << message;
    }

    /// A display without a screen cannot do everything windows ask of it, and says so; nor can
    /// Wine. Qt 6 also complains if a cell that Return is to close, which it does from the event
    /// loop, was closed before by the choice of another row. What was typed there has been taken by
    /// then.
    static bool IsOfTheToolkit(const QString& message)
    {
        const QString late =
            "QAbstractItemView::%1 called with an editor that does not belong to this view";
        return message.startsWith("This plugin does not support") ||
               (message.startsWith("EnableNonClientDpiScaling()") &&
                message.endsWith("(Call not implemented.)")) ||
               (QT_VERSION_MAJOR == 6 &&
                (message == late.arg("commitData") || message == late.arg("closeEditor")));
    }

    inline static QStringList s_messages;

    std::ostringstream m_stream;
    std::streambuf* m_streamBefore;
    QtMessageHandler m_handlerBefore;
};

/// VESK_SITTINGS selects another number of sittings.
unsigned CountSittings()
{
    const int count = qEnvironmentVariableIntValue("VESK_SITTINGS");
    return count > 0 ? static_cast<unsigned>(count) : 500;
}

}

/// Whatever a user of the whole program does, nothing breaks, and replaying the journal yields the
/// same drawing to the last bit.
class SittingsTest final : public QObject
{
    Q_OBJECT

private slots:
    void sittingIsRepeatedToTheLastBit_data()
    {
        QTest::addColumn<unsigned>("seed");

        for (unsigned seed = 1; seed <= CountSittings(); ++seed)
            QTest::newRow(QByteArray::number(seed).constData()) << seed;
    }

    void sittingIsRepeatedToTheLastBit()
    {
        QFETCH(unsigned, seed);
        const ScenarioFixture f;
        const Listener listener;

        QStringList faults = Sit(f, seed);
        faults += Repeat(f);

        faults += f.GetWarnings() + listener.GetHeard();
        if (!faults.isEmpty())
            QFAIL(qPrintable(faults.join('\n') + "\nafter:\n" + m_acts.join('\n')));
    }

    void sittingsDidEverything()
    {
        QStringList notDone = RandomUser::AllCommands();
        for (const QString& id : m_tally.begun.keys())
            notDone.removeAll(id);

        QCOMPARE(notDone, QStringList());
        QVERIFY(m_tally.entities >= m_tally.sittings);
    }

    void valuesOfEveryKindWereTakenByKeys_data()
    {
        QTest::addColumn<QString>("command");

        QTest::newRow("length and angle") << "Sketcher.Line";
        QTest::newRow("width and height") << "Sketcher.Rectangle";
        QTest::newRow("radius") << "Sketcher.Circle";
        QTest::newRow("radius of three points") << "Sketcher.Arc3Points";
        QTest::newRow("central angle") << "Sketcher.ArcCentre";
        QTest::newRow("turn") << "Sketcher.Rotate";
    }

    void valuesOfEveryKindWereTakenByKeys()
    {
        QFETCH(QString, command);

        QVERIFY2(m_tally.committed[command] >= m_tally.sittings / 20,
                 qPrintable(QString::number(m_tally.committed[command])));
    }

    void valuesWereDisturbedAndRefused()
    {
        QVERIFY(m_tally.refused >= m_tally.sittings / 20);
        QVERIFY(m_tally.zoomsWithin >= m_tally.sittings / 20);
        QVERIFY(m_tally.switchesWithin >= m_tally.sittings / 20);
        QVERIFY(m_tally.closed >= m_tally.sittings / 20);
        QVERIFY(m_tally.lateUnits >= m_tally.sittings / 20);
    }

    void cleanupTestCase()
    {
        qInfo() << m_tally.sittings << "sittings of" << m_tally.acts << "acts and"
                << m_tally.entities << "entities at the end," << m_tally.refused
                << "values refused," << m_tally.zoomsWithin << "zooms and" << m_tally.switchesWithin
                << "buttons within," << m_tally.closed << "editors closed," << m_tally.lateUnits
                << "units too late, taken by keys:" << m_tally.committed << m_tally.begun;
    }

private:
    /// The faults of a sitting. Its journal and model remain in the files of the fixture.
    QStringList Sit(const ScenarioFixture& f, unsigned seed)
    {
        SittingWatch watch(m_tally);
        ScriptedUser user;
        RandomUser random(seed, user, watch);
        random.Plan();
        const int code = user.Run(f.Draw());
        m_acts = watch.GetActs();
        m_tally.entities += static_cast<int>(ReadEntities(f.File("model")).size());
        return watch.GetFaults() + Expect(code == 0, "ended with another code than 0");
    }

    static QStringList Repeat(const ScenarioFixture& f)
    {
        const QString repeated = f.File("repeated");
        const int code = Session(f.Replay(f.File("journal"), repeated)).Run();
        const bool isSame = ReadBytes(repeated) == ReadBytes(f.File("model"));
        return Expect(code == 0, "cannot be repeated") + Expect(isSame, "repeated otherwise");
    }

    static QStringList Expect(bool isSo, const QString& fault)
    {
        return isSo ? QStringList() : QStringList(fault);
    }

    SittingTally m_tally;
    QStringList m_acts;
};

VESK_TESTS(SittingsTest);
#include "SittingsTest.moc"
