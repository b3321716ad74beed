#include "Recovery/UnsavedWork.h"

#include "Model/Sketch.h"
#include "Sketcher/Recovery/Records.h"

#include "Support/TestValues.h"

#include <QFileInfo>
#include <QTemporaryDir>

using vesk::WriteBytes;

Q_DECLARE_METATYPE(Records)
Q_DECLARE_METATYPE(std::vector<int>)

namespace
{

const std::string s_first(64, '1');
const std::string s_second(64, '2');

}

/// What a journal without an end says about the work in it.
class UnsavedWorkTest final : public QObject
{
    Q_OBJECT

private slots:
    void onlyACloseAtTheEndIsAnEnd_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<bool>("isEnded");

        const QByteArray drawn =
            Records().Header().Command(1, L"A").Mark(2, s_first).End(1).ToText();
        const QByteArray close = Records().Close(3).ToText();
        QTest::newRow("empty") << QByteArray() << false;
        QTest::newRow("no end") << drawn << false;
        QTest::newRow("closed") << drawn + close << true;
        QTest::newRow("closed, nothing else") << close << true;
        QTest::newRow("torn close") << drawn + close.chopped(1) << false;
        QTest::newRow("continued") << drawn + close + Records().Select(4).ToText() << false;
        QTest::newRow("continued and torn") << drawn + close + "{" << false;
        QTest::newRow("long line before") << QByteArray(5000, ' ') + '\n' + close << true;
        QTest::newRow("not a record") << drawn + "x\n" << false;
    }

    void onlyACloseAtTheEndIsAnEnd()
    {
        QFETCH(QByteArray, text);
        QVERIFY(WriteBytes(Path(), text));

        QFETCH(bool, isEnded);
        QCOMPARE(IsEnded(Path()), isEnded);
    }

    void aMissingJournalHasNoEndAndNoWork()
    {
        QVERIFY(!IsEnded(m_folder.filePath("missing")));
        QVERIFY(!FindUnsavedWork(m_folder.filePath("missing")).has_value());
    }

    void stepsAreChangesOfTheDrawing_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<int>("steps");

        const std::string empty = Sketch().GetDigest();
        const auto begun = [] { return Records().Header().Command(1, L"Sketcher.Line"); };
        QTest::newRow("nothing") << QByteArray() << 0;
        QTest::newRow("header") << Records().Header().ToText() << 0;
        QTest::newRow("a tool alone") << begun().ToText() << 0;
        QTest::newRow("a first point") << begun().Point(2).Mark(3, empty).ToText() << 0;
        QTest::newRow("one") << begun().Mark(2, empty).Mark(3, s_first).ToText() << 1;
        QTest::newRow("two, and one that changed nothing")
            << begun().Mark(2, s_first).Mark(3, s_first).Mark(4, s_second).ToText() << 2;
        QTest::newRow("undone again") << begun().Mark(2, s_first).Mark(3, empty).ToText() << 0;
        QTest::newRow("undone and changed")
            << begun().Mark(2, s_first).Mark(3, empty).Mark(4, s_second).ToText() << 3;
        const auto opened = [] {
            return Records().Header().Command(1, L"Sketcher.OpenContent").Mark(2, s_first).End(1);
        };
        QTest::newRow("opened") << opened().ToText() << 0;
        QTest::newRow("opened and changed") << opened().Mark(3, s_second).ToText() << 1;
        QTest::newRow("opened, changed and undone")
            << opened().Mark(3, s_second).Mark(4, s_first).ToText() << 0;
        QTest::newRow("opening that failed") << Records()
                                                    .Header()
                                                    .Command(1, L"Sketcher.OpenContent")
                                                    .End(1)
                                                    .Mark(2, s_first)
                                                    .ToText()
                                             << 1;
        const auto saved = [&begun] { return begun().Mark(2, s_first).Save(3, s_first); };
        QTest::newRow("saved") << saved().End(3).ToText() << 0;
        QTest::newRow("saved and looked at") << saved().End(3).Mark(4, s_first).ToText() << 0;
        QTest::newRow("saved and changed") << saved().End(3).Mark(4, s_second).ToText() << 1;
        QTest::newRow("saved and changed back")
            << saved().End(3).Mark(4, s_second).Mark(5, s_first).ToText() << 0;
        QTest::newRow("saved and undone to the beginning")
            << saved().End(3).Mark(4, empty).ToText() << 1;
        QTest::newRow("killed while it saved") << saved().ToText() << 1;
        QTest::newRow("killed while it saved, the tool had ended") << saved().End(1).ToText() << 1;
        QTest::newRow("saving that failed") << saved().Refuse(3).ToText() << 1;
        QTest::newRow("saving that failed, and more")
            << saved().Refuse(3).Mark(4, s_second).ToText() << 2;
        QTest::newRow("changed while it saved") << saved().Mark(4, s_second).End(3).ToText() << 2;
        QTest::newRow("opened after changes") << begun()
                                                     .Mark(2, s_second)
                                                     .Command(3, L"Sketcher.OpenContent")
                                                     .Mark(4, s_first)
                                                     .Mark(5, s_second)
                                                     .ToText()
                                              << 1;
        QTest::newRow("begun anew after changes") << begun()
                                                         .Mark(2, s_second)
                                                         .Command(3, L"Sketcher.NewDrawing")
                                                         .Mark(4, empty)
                                                         .Mark(5, s_first)
                                                         .ToText()
                                                  << 1;
        QTest::newRow("recovered")
            << Records().Header().Command(1, L"Sketcher.RecoverContent").Mark(2, s_first).ToText()
            << 1;
        QTest::newRow("without marks")
            << Records().Command(1, L"Sketcher.Line").Point(2).Point(3).ToText() << 2;
        QTest::newRow("undone without marks")
            << Records().Command(1, L"Sketcher.Undo").Undo(2).ToText() << 1;
        QTest::newRow("renamed without marks") << Records().Property(1).ToText() << 1;
    }

    void stepsAreChangesOfTheDrawing()
    {
        QFETCH(QByteArray, text);
        QVERIFY(WriteBytes(Path(), text));

        const std::optional<UnsavedWork> work = FindUnsavedWork(Path());

        QFETCH(int, steps);
        QCOMPARE(work.has_value(), steps > 0);
        QCOMPARE(work.has_value() ? work->steps : 0, steps);
    }

    void whatWasBeingDoneIsTheLastCommand()
    {
        const QByteArray text =
            Records().Header().Command(1, L"A").Mark(2, s_first).Command(3, L"B").ToText();
        QVERIFY(WriteBytes(Path(), text + "{\"n\":4"));

        const std::optional<UnsavedWork> work = FindUnsavedWork(Path());

        QVERIFY(work.has_value());
        QCOMPARE(work->journal, Path());
        QCOMPARE(work->command, std::wstring(L"B"));
        QVERIFY(work->isReadInFull);
        QCOMPARE(work->time, QFileInfo(Path()).lastModified());
    }

    void whatIsBeforeADamagedLineCounts()
    {
        const QByteArray text = Records().Header().Command(1, L"A").Mark(2, s_first).ToText();
        QVERIFY(WriteBytes(Path(), text + "damage\n" + Records().Mark(3, s_second).ToText()));

        const std::optional<UnsavedWork> work = FindUnsavedWork(Path());

        QVERIFY(work.has_value());
        QCOMPARE(work->steps, 1);
        QVERIFY(!work->isReadInFull);
    }

    void onlyCompletedRecordsAreRepeated_data()
    {
        QTest::addColumn<Records>("records");
        QTest::addColumn<std::vector<int>>("completed");

        const auto drawn = [] {
            return Records().Header().Command(1, L"A").Point(2).Mark(3, s_first);
        };
        QTest::newRow("all") << drawn().End(1) << std::vector{0, 1, 2, 3, -1};
        QTest::newRow("no point without a mark") << drawn().Point(4) << std::vector{0, 1, 2, 3};
        QTest::newRow("no command without an end")
            << drawn().End(1).Command(4, L"B") << std::vector{0, 1, 2, 3, -1};
        QTest::newRow("no command that ended another one first")
            << drawn().Command(4, L"B").End(1) << std::vector{0, 1, 2, 3, -1};
        QTest::newRow("a command that only changed the view")
            << drawn().Command(4, L"B").End(4) << std::vector{0, 1, 2, 3, 4, -4};
        QTest::newRow("no undo without a mark")
            << drawn().Command(4, L"U").Undo(5) << std::vector{0, 1, 2, 3};
        QTest::newRow("whatever happened before the last mark")
            << drawn().Command(4, L"B").Point(5).Mark(6, s_second)
            << std::vector{0, 1, 2, 3, 4, 5, 6};
        QTest::newRow("everything without marks")
            << Records().Command(1, L"A").Point(2) << std::vector{1, 2};
    }

    void onlyCompletedRecordsAreRepeated()
    {
        QFETCH(Records, records);
        QFETCH(std::vector<int>, completed);

        QCOMPARE(Records::NumbersOf(CompletedOf(records.Get())), completed);
    }

private:
    QString Path() const { return m_folder.filePath("journal.jsonl"); }

    QTemporaryDir m_folder;
};

VESK_TESTS(UnsavedWorkTest);
#include "UnsavedWorkTest.moc"
