#include "Documents/Documents.h"

#include "Documents/DocumentsFixture.h"
#include "Sketcher/WhileReplaying.h"
#include "Support/TestValues.h"

#include <QMenu>

namespace
{

vesk::CommandParameters Named(const wchar_t* name, const QString& text)
{
    vesk::CommandParameters parameters;
    parameters.Add(name, vesk::CommandParameterValue(text.toStdWString()));
    return parameters;
}

/// Keeps content beside the journal; returns what opens it again.
vesk::CommandParameters Keep(const QByteArray& bytes)
{
    return Named(L"content", KeptContent::Get().Keep(bytes).value_or(QString()));
}

vesk::CommandParameters Keep(const SketchContent& content)
{
    return Keep(QByteArray::fromStdString(DocumentFile::ToText(content)));
}

}

/// What a replay does about files: it opens what was kept, saves nothing and asks nothing.
class DocumentsReplayTest final : public QObject
{
    Q_OBJECT

private slots:
    void whatWasOpenedIsOpenedAgainWithoutItsFile()
    {
        DocumentsFixture f;
        QVERIFY(f.pDocuments->OpenFile(f.MakeFile("sample.vsk")));
        SketchContent other = MakeSampleContent();
        other.entities.resize(1);
        const vesk::CommandParameters parameters = Keep(other);

        QVERIFY(f.pDocuments->CanOpen(parameters));
        f.pDocuments->DoOpen(parameters);

        QVERIFY(f.sketch.GetEntities() == other.entities);
        QVERIFY(!f.pDocuments->GetDocument().HasFile());
        QVERIFY(!f.pDocuments->IsModified());
    }

    void theContentIsTheOneOfTheDigest()
    {
        DocumentsFixture f;
        SketchContent other = MakeSampleContent();
        other.entities.resize(1);
        const vesk::CommandParameters first = Keep(MakeSampleContent());
        const vesk::CommandParameters second = Keep(other);

        QVERIFY(f.pDocuments->CanOpen(first));
        f.pDocuments->DoOpen(second);

        QCOMPARE(f.sketch.GetEntities().size(), std::size_t(1));
    }

    void damagedContentCannotBeOpened()
    {
        DocumentsFixture f;
        f.Draw();
        const vesk::CommandParameters parameters = Keep(QByteArray("{}"));

        QVERIFY(!f.pDocuments->CanOpen(parameters));
        f.pDocuments->DoOpen(parameters);

        QCOMPARE(f.sketch.GetEntities().size(), std::size_t(1));
    }

    void aDrawingThatWasEmptiedAndHasNoFileIsNotModified()
    {
        DocumentsFixture f;
        f.Draw();
        const SketchContent drawn = f.sketch.GetContent();
        f.pDocuments->DoOpen(Keep(drawn));

        f.sketch.Erase({1}, L"");

        QVERIFY(!f.pDocuments->IsModified());
    }

    void aSaveOfAnotherDrawingLeavesThisOneModified()
    {
        DocumentsFixture f;
        f.Draw();

        f.pDocuments->DoSave(Named(L"digest", QString(64, '0')));

        QVERIFY(f.pDocuments->IsModified());
    }

    void nothingIsAskedOrShown_data()
    {
        QTest::addColumn<QString>("command");

        for (const char* command : {"Sketcher.New", "Sketcher.Open", "Sketcher.Save",
                                    "Sketcher.SaveAs", "Sketcher.Recent"})
            QTest::newRow(command) << command;
    }

    void nothingIsAskedOrShown()
    {
        QFETCH(QString, command);
        DocumentsFixture f;
        f.Draw();

        const WhileReplaying replay([&] { f.Run(command.toStdWString().c_str()); });

        QCOMPARE(f.user.GetTexts(), QStringList());
        QVERIFY(f.pWindow->findChild<QMenu*>("Sketcher.RecentFiles") == nullptr);
        QCOMPARE(f.sketch.GetEntities().size(), std::size_t(1));
    }
};

VESK_TESTS(DocumentsReplayTest);
#include "DocumentsReplayTest.moc"
