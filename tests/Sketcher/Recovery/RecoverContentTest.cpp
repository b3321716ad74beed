#include "Recovery/RecoverContent.h"

#include "Model/DocumentFile.h"
#include "Model/KeptContent.h"
#include "Model/Sketch.h"
#include "Recovery/Snapshot.h"

#include "Support/FileBytes.h"
#include "Support/TestValues.h"

#include <QTemporaryDir>

using vesk::CommandParameters;
using vesk::CommandParameterValue;

/// The command with which a journal begins that goes on with a snapshot.
class RecoverContentTest final : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        KeptContent::Get().Forget();
        m_drawn.Clear();
        m_drawn.AddLine({0, 0, 0}, {5, 0, 0});
    }

    void cleanupTestCase() { KeptContent::Get().Forget(); }

    void theDrawingOfTheSnapshotIsRestored()
    {
        const std::optional<CommandParameters> parameters = RecoverContent::Keep(MakeSnapshot());
        QVERIFY(parameters.has_value());
        Sketch sketch;
        sketch.AddLine({0, 0, 0}, {9, 9, 0});

        QVERIFY(RecoverContent::IsPossible(*parameters));
        RecoverContent::Apply(sketch, *parameters);

        QCOMPARE(sketch.GetDigest(), m_drawn.GetDigest());
        QVERIFY(sketch.GetEntities() == m_drawn.GetEntities());
        QVERIFY(!sketch.CanUndo());
    }

    void aLaterReplayFindsItBesideTheJournal()
    {
        const QTemporaryDir folder;
        KeptContent::Get().SetJournal(folder.filePath("journal"));
        const std::optional<CommandParameters> parameters = RecoverContent::Keep(MakeSnapshot());
        Sketch first;
        RecoverContent::Apply(first, *parameters);
        KeptContent::Get().Forget();
        KeptContent::Get().SetSource(folder.filePath("journal"));
        Sketch second;

        RecoverContent::Apply(second, *parameters);

        QCOMPARE(second.GetDigest(), m_drawn.GetDigest());
    }

    void whatIsNotKeptChangesNothing_data()
    {
        QTest::addColumn<QString>("key");

        QTest::newRow("none") << "";
        QTest::newRow("unknown") << QString(64, '1');
    }

    void whatIsNotKeptChangesNothing()
    {
        QFETCH(QString, key);
        CommandParameters parameters;
        if (!key.isEmpty())
            parameters.Add(L"content", CommandParameterValue(key.toStdWString()));
        const std::string before = m_drawn.GetDigest();

        QVERIFY(!RecoverContent::IsPossible(parameters));
        RecoverContent::Apply(m_drawn, parameters);

        QCOMPARE(m_drawn.GetDigest(), before);
    }

    void whatWasPreparedIsNotTakenForAnother()
    {
        const std::optional<CommandParameters> prepared = RecoverContent::Keep(MakeSnapshot());
        CommandParameters other;
        other.Add(L"content", CommandParameterValue(std::wstring(64, L'1')));

        QVERIFY(!RecoverContent::IsPossible(other));
        QVERIFY(RecoverContent::IsPossible(*prepared));
    }

    void whatCannotBeKeptIsNotRecovered()
    {
        const QTemporaryDir folder;
        QVERIFY(vesk::WriteBytes(folder.filePath("journal.kept"), "no folder"));
        KeptContent::Get().SetJournal(folder.filePath("journal"));

        QVERIFY(!RecoverContent::Keep(MakeSnapshot()).has_value());
    }

    void whatIsNotADrawingChangesNothing()
    {
        Snapshot snapshot = MakeSnapshot();
        snapshot.bytes = "{}";
        const std::optional<CommandParameters> parameters = RecoverContent::Keep(snapshot);
        Sketch prepared;
        RecoverContent::Apply(prepared, *parameters);

        QVERIFY(!RecoverContent::IsPossible(*parameters));
    }

private:
    Snapshot MakeSnapshot() const
    {
        const std::string text = DocumentFile::ToText(m_drawn.GetContent());
        return {1, QByteArray::fromStdString(text), m_drawn.GetDigest(), m_drawn.GetContent()};
    }

    Sketch m_drawn;
};

VESK_TESTS(RecoverContentTest);
#include "RecoverContentTest.moc"
