#include "Documents/Documents.h"

#include "Documents/DocumentsFixture.h"
#include "Model/Digest.h"
#include "Support/TestValues.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFileInfo>
#include <QMenu>
#include <QPointer>

#include <stdexcept>

using Manners = Documents::Manners;

class DocumentsTest final : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_pFixture = std::make_unique<DocumentsFixture>(); }

    void cleanup()
    {
        const QStringList faults = m_pFixture->user.GetFaults();
        m_pFixture.reset();
        QCOMPARE(faults, QStringList());
    }

    void aNewDrawingHasNoFileAndIsNotModified()
    {
        QVERIFY(!m_pFixture->pDocuments->GetDocument().HasFile());
        QVERIFY(!m_pFixture->pDocuments->IsModified());
    }

    void unsavedChangesAreAskedAbout_data()
    {
        QTest::addColumn<QString>("act");
        QTest::addColumn<QString>("answer");
        QTest::addColumn<bool>("isReplaced");
        QTest::addColumn<bool>("isSaved");

        for (const char* act : {"Sketcher.New", "Sketcher.Close", "close the window"})
        {
            QTest::addRow("%s, save", act) << act << "保存" << true << true;
            QTest::addRow("%s, discard", act) << act << "不保存" << true << false;
            QTest::addRow("%s, cancel", act) << act << "取消" << false << false;
        }
    }

    void unsavedChangesAreAskedAbout()
    {
        QFETCH(QString, act);
        QFETCH(QString, answer);
        DocumentsFixture& f = *m_pFixture;
        QVERIFY(m_pFixture->OpenSample());
        f.pWindow->show();
        const QByteArray before = vesk::ReadBytes(f.File("sample.vsk"));
        f.Draw();
        f.user.Press(answer);

        bool isReplaced = false;
        if (act.startsWith("Sketcher."))
            f.Run(act.toStdWString().c_str());
        else
            isReplaced = f.pWindow->close();

        QCOMPARE(f.user.GetTexts(),
                 QStringList{"要保存对“sample”的更改吗？如果不保存，更改将丢失。"});
        isReplaced = isReplaced || f.sketch.GetEntities().empty();
        QTEST(isReplaced, "isReplaced");
        QTEST(vesk::ReadBytes(f.File("sample.vsk")) != before, "isSaved");
    }

    void aDrawingWithoutFileIsAskedAboutByItsName()
    {
        m_pFixture->Draw();
        m_pFixture->user.Press("取消");

        m_pFixture->Run(L"Sketcher.New");

        QVERIFY(m_pFixture->user.GetLastText().startsWith("要保存对“未命名”的更改吗？"));
        QVERIFY(!m_pFixture->sketch.GetEntities().empty());
    }

    void aDrawingIsNotReplacedByAFileUnlessTheUserAgrees()
    {
        m_pFixture->Draw();
        m_pFixture->user.Press("取消");

        m_pFixture->Run(L"Sketcher.Open");

        QCOMPARE(m_pFixture->user.GetTexts().size(), 1);
        QVERIFY(!m_pFixture->sketch.GetEntities().empty());
    }

    void aNewDrawingLeavesTheFile()
    {
        QVERIFY(m_pFixture->OpenSample());

        m_pFixture->Run(L"Sketcher.New");

        QVERIFY(m_pFixture->sketch.GetEntities().empty());
        QVERIFY(!m_pFixture->pDocuments->GetDocument().HasFile());
        QVERIFY(!m_pFixture->pDocuments->IsModified());
        QVERIFY(!QFileInfo::exists(m_pFixture->File(".sample.vsk.lock")));
    }

    void anEmptiedDrawingThatHasAFileIsModified()
    {
        DocumentsFixture& f = *m_pFixture;
        f.Draw();
        const QString path = f.MakeFile("line.vsk", f.sketch.GetContent());
        QVERIFY(f.pDocuments->OpenFile(path));

        f.sketch.Erase({1}, L"");

        QVERIFY(f.pDocuments->IsModified());
    }

    void anEmptyUntouchedDrawingIsNotAskedAbout()
    {
        m_pFixture->Draw();
        m_pFixture->sketch.Undo();

        m_pFixture->Run(L"Sketcher.New");

        QVERIFY(m_pFixture->pWindow->close());
    }

    void aDrawingWithoutFileMayBeWantedByItsJournalAlone()
    {
        m_pFixture.reset();
        m_pFixture = std::make_unique<DocumentsFixture>(Manners::AskAboutFiles);
        m_pFixture->Draw();

        QVERIFY(m_pFixture->pWindow->close());
    }

    void aDrawingWithFileIsAskedAboutThoughItsJournalIsKept()
    {
        m_pFixture.reset();
        m_pFixture = std::make_unique<DocumentsFixture>(Manners::AskAboutFiles);
        QVERIFY(m_pFixture->OpenSample());
        m_pFixture->Draw();
        m_pFixture->user.Press("取消");

        QVERIFY(!m_pFixture->pWindow->close());
    }

    void nobodyIsAskedAboutAFileInUseWhoIsNotThere()
    {
        m_pFixture.reset();
        m_pFixture = std::make_unique<DocumentsFixture>(Manners::Silent);
        const QString path = m_pFixture->MakeFile("sample.vsk");
        const DocumentLock other(path);

        QVERIFY(m_pFixture->pDocuments->OpenFile(path));

        QVERIFY(m_pFixture->pDocuments->GetDocument().isReadOnly);
    }

    void nobodyIsAskedWhoIsNotThere()
    {
        m_pFixture.reset();
        m_pFixture = std::make_unique<DocumentsFixture>(Manners::Silent);
        QVERIFY(m_pFixture->OpenSample());
        m_pFixture->Draw();
        m_pFixture->Run(L"Sketcher.SaveAs");
        m_pFixture->Run(L"Sketcher.Open");
        m_pFixture->Run(L"Sketcher.Recent");

        QVERIFY(m_pFixture->pWindow->findChild<QMenu*>("Sketcher.RecentFiles") == nullptr);
        QVERIFY(m_pFixture->pWindow->close());
    }

    void aProgramToldToEndWhileItAsksEnds()
    {
        m_pFixture->Draw();
        m_pFixture->user.Do([this](QDialog& dialog) {
            m_pFixture->pDocuments->EndWithoutQuestions();
            dialog.reject();
        });

        QVERIFY(m_pFixture->pWindow->close());
    }

    void aProgramToldToEndAsksNothing()
    {
        m_pFixture->Draw();

        m_pFixture->pDocuments->EndWithoutQuestions();

        QVERIFY(m_pFixture->pWindow->close());
    }

    void withoutRecentFilesTheMenuSaysSoAndGoes()
    {
        DocumentsFixture& f = *m_pFixture;
        f.Run(L"Sketcher.Recent");
        QPointer<QMenu> pMenu = f.pWindow->findChild<QMenu*>("Sketcher.RecentFiles");
        QVERIFY(pMenu != nullptr);
        QCOMPARE(pMenu->actions().size(), 1);
        QVERIFY(!pMenu->actions().front()->isEnabled());

        pMenu->close();

        QTRY_VERIFY(pMenu == nullptr);
    }

    void aRecentFileHasItsNameInTheMenu()
    {
        QVERIFY(m_pFixture->OpenSample("a&b.vsk"));

        m_pFixture->Run(L"Sketcher.Recent");

        auto* pMenu = m_pFixture->pWindow->findChild<QMenu*>("Sketcher.RecentFiles");
        QVERIFY(pMenu->actions().front()->text().startsWith("&1 a&&b.vsk"));
    }

    void aRecentFileIsOpenedFromTheMenu()
    {
        DocumentsFixture& f = *m_pFixture;
        QVERIFY(m_pFixture->OpenSample());
        f.Run(L"Sketcher.New");
        f.pWindow->show();
        f.Run(L"Sketcher.Recent");
        auto* pMenu = f.pWindow->findChild<QMenu*>("Sketcher.RecentFiles");
        QVERIFY(pMenu != nullptr);
        QCOMPARE(pMenu->actions().size(), 1);
        QVERIFY(pMenu->actions().front()->text().startsWith("&1 sample.vsk - "));

        pMenu->actions().front()->trigger();

        QTRY_COMPARE(f.sketch.GetEntities().size(), std::size_t(4));
    }

    void theJournalHoldsDigestsAndNoPaths()
    {
        DocumentsFixture& f = *m_pFixture;
        const QByteArray bytes = vesk::ReadBytes(f.MakeFile("sample.vsk"));
        QVERIFY(m_pFixture->OpenSample());
        f.Run(L"Sketcher.Save");
        f.Run(L"Sketcher.New");

        const std::vector<vesk::CommandRecord>& commands = f.journal.GetCommands();

        QCOMPARE(commands.size(), std::size_t(5));
        QCOMPARE(commands[0].commandId, std::wstring(L"Sketcher.OpenContent"));
        QCOMPARE(Parameter(commands[0], L"content"),
                 QString(QCryptographicHash::hash(bytes, QCryptographicHash::Sha256).toHex()));
        QCOMPARE(commands[2].commandId, std::wstring(L"Sketcher.SaveDrawing"));
        QCOMPARE(Parameter(commands[2], L"digest"),
                 QString::fromStdString(DigestOf(MakeSampleContent()).ToText()));
        QCOMPARE(commands[4].commandId, std::wstring(L"Sketcher.NewDrawing"));
        QVERIFY(commands[4].parameters.IsEmpty());
    }

    void aReplayChecksInsteadOfSaving()
    {
        DocumentsFixture& f = *m_pFixture;
        QVERIFY(m_pFixture->OpenSample());
        const QByteArray before = vesk::ReadBytes(f.File("sample.vsk"));
        vesk::CommandParameters parameters;
        parameters.Add(L"digest", vesk::CommandParameterValue(std::wstring(64, L'0')));
        const bool isOtherPossible = f.pDocuments->CanSave(parameters);
        f.Draw();
        parameters.Add(L"digest", vesk::CommandParameterValue(
                                      QString::fromStdString(f.sketch.GetDigest()).toStdWString()));

        const bool isPossible = f.pDocuments->CanSave(parameters);
        f.pDocuments->DoSave(parameters);

        QVERIFY(isPossible);
        QVERIFY(!isOtherPossible);
        QCOMPARE(vesk::ReadBytes(f.File("sample.vsk")), before);
        QVERIFY(!f.pDocuments->IsModified());
    }

    void contentThatWasNotKeptCannotBeOpened()
    {
        vesk::CommandParameters parameters;
        parameters.Add(L"content", vesk::CommandParameterValue(std::wstring(64, L'0')));

        QVERIFY(!m_pFixture->pDocuments->CanOpen(parameters));
        QVERIFY(!m_pFixture->pDocuments->CanOpen({}));
    }

    void everythingMayDieWhileAQuestionIsOpen_data()
    {
        QTest::addColumn<QString>("command");

        for (const char* command :
             {"Sketcher.New", "Sketcher.Open", "Sketcher.SaveAs", "Sketcher.Save"})
            QTest::newRow(command) << command;
    }

    void everythingMayDieWhileAQuestionIsOpen()
    {
        QFETCH(QString, command);
        DocumentsFixture& f = *m_pFixture;
        f.Draw();
        f.user.Do([&f](QDialog&) {
            f.pDocuments.reset();
            f.pWindow.reset();
        });

        f.Run(command.toStdWString().c_str());

        QVERIFY(f.pWindow == nullptr);
    }

    void theWindowCanBeClosedAfterWorkThatFails()
    {
        DocumentsFixture& f = *m_pFixture;
        f.progress = [](std::size_t, std::size_t) -> bool { throw std::runtime_error("failed"); };
        const QString path = f.MakeFile("large.vsk", MakeRandomContent(1, 9000));

        QVERIFY_EXCEPTION_THROWN(f.pDocuments->OpenFile(path), std::runtime_error);

        QVERIFY(f.pWindow->close());
    }

private:
    static QString Parameter(const vesk::CommandRecord& record, const wchar_t* name)
    {
        const vesk::CommandParameterValue* pValue = record.parameters.Find(name);
        return QString::fromStdWString(std::get<std::wstring>(pValue->Get()));
    }

    std::unique_ptr<DocumentsFixture> m_pFixture;
};

VESK_TESTS(DocumentsTest);
#include "DocumentsTest.moc"
