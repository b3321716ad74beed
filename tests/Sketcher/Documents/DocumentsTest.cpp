#include "Documents/Documents.h"

#include "Documents/DocumentDialogs.h"
#include "Documents/DocumentsFixture.h"
#include "Model/Digest.h"
#include "Model/Selection.h"
#include "Support/TestValues.h"

#include <QApplication>
#include <QCryptographicHash>
#include <QDir>
#include <QDropEvent>
#include <QFileInfo>
#include <QLabel>
#include <QMenu>
#include <QMimeData>
#include <QSignalSpy>
#include <QUrl>

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
        OpenSample();
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

    void nobodyIsAskedWhoIsNotThere()
    {
        m_pFixture.reset();
        m_pFixture = std::make_unique<DocumentsFixture>(Manners::Silent);
        OpenSample();
        m_pFixture->Draw();
        m_pFixture->Run(L"Sketcher.SaveAs");
        m_pFixture->Run(L"Sketcher.Open");

        QVERIFY(m_pFixture->pWindow->close());
    }

    void aProgramToldToEndAsksNothing()
    {
        m_pFixture->Draw();

        m_pFixture->pDocuments->EndWithoutQuestions();

        QVERIFY(m_pFixture->pWindow->close());
    }

    void anOpenedFileReplacesTheDrawing()
    {
        DocumentsFixture& f = *m_pFixture;
        Selection selection(f.sketch);
        f.Draw();
        selection.Select({1});
        f.user.Press("不保存").ChooseFile(f.MakeFile("sample.vsk"));
        const QSignalSpy opened(f.pDocuments.get(), &Documents::opened);

        f.Run(L"Sketcher.Open");

        QVERIFY(f.sketch.GetEntities() == MakeSampleContent().entities);
        QVERIFY(!f.sketch.CanUndo());
        QVERIFY(selection.IsEmpty());
        QVERIFY(!f.pDocuments->IsModified());
        QCOMPARE(opened.count(), 1);
        QVERIFY(QFileInfo::exists(f.File(".sample.vsk.lock")));
    }

    void aFileThatCannotBeOpenedIsToldAndLeftAlone_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QString>("reason");

        QTest::newRow("damaged") << QByteArray("{\n\"format\":}")
                                 << "文件第 2 行有错误（\"format\" is not a text）。文件保持原样。";
        QTest::newRow("newer") << QByteArray("{\"format\":\"vesk-drawing\",\"version\":2}")
                               << "该文件由更新版本的程序保存，请用新版本打开。";
    }

    void aFileThatCannotBeOpenedIsToldAndLeftAlone()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(QString, reason);
        DocumentsFixture& f = *m_pFixture;
        const QString path = f.File("bad.vsk");
        QVERIFY(vesk::WriteBytes(path, bytes));
        OpenSample();
        f.user.ChooseFile(path).Press("确定");

        f.Run(L"Sketcher.Open");

        QCOMPARE(f.user.GetLastText(), "无法打开“" + path + "”" + reason);
        QCOMPARE(vesk::ReadBytes(path), bytes);
        QCOMPARE(f.pDocuments->GetDocument().GetName(), QString("sample"));
        QCOMPARE(f.sketch.GetEntities().size(), std::size_t(4));
        QVERIFY(!QFileInfo::exists(f.File(".bad.vsk.lock")));
    }

    void aFileThatIsOpenElsewhereIsToldAndOpenedReadOnly()
    {
        DocumentsFixture& f = *m_pFixture;
        const QString path = f.MakeFile("sample.vsk");
        const DocumentLock other(path);
        f.user.ChooseFile(path).Press("以只读方式打开").ChooseFile(f.File("mine.vsk"));

        f.Run(L"Sketcher.Open");
        const bool isReadOnly = f.pDocuments->GetDocument().isReadOnly;
        f.Run(L"Sketcher.Save");

        QVERIFY(isReadOnly);
        QVERIFY(f.user.GetTexts().value(1).startsWith("“sample.vsk”已在另一个程序中打开。"));
        QCOMPARE(f.pDocuments->GetDocument().GetName(), QString("mine"));
        QVERIFY(!f.pDocuments->GetDocument().isReadOnly);
    }

    void aFileThatIsOpenElsewhereNeedNotBeOpened()
    {
        DocumentsFixture& f = *m_pFixture;
        const QString path = f.MakeFile("sample.vsk");
        const DocumentLock other(path);
        f.user.ChooseFile(path).Press("取消");

        f.Run(L"Sketcher.Open");

        QVERIFY(f.sketch.GetEntities().empty());
    }

    void theOwnFileCanBeOpenedAgain()
    {
        OpenSample();
        m_pFixture->Draw();
        m_pFixture->user.Press("不保存").ChooseFile(m_pFixture->File("sample.vsk"));

        m_pFixture->Run(L"Sketcher.Open");

        QCOMPARE(m_pFixture->sketch.GetEntities().size(), std::size_t(4));
        QVERIFY(!m_pFixture->pDocuments->GetDocument().isReadOnly);
    }

    void aLargeDrawingIsOpenedAndSavedWhileTheWindowLives()
    {
        DocumentsFixture& f = *m_pFixture;
        const QString path = f.MakeFile("large.vsk", MakeRandomContent(1, 9000));
        f.pDocuments->OpenFile(path);
        QCOMPARE(f.workCount, 1);
        f.Draw();

        f.Run(L"Sketcher.Save");

        QCOMPARE(f.workCount, 2);
        QVERIFY(!f.pDocuments->IsModified());
    }

    void cancelledOpeningChangesNothing()
    {
        DocumentsFixture& f = *m_pFixture;
        OpenSample();
        f.progress = [](std::size_t done, std::size_t) { return done < 100; };

        const bool isOpen =
            f.pDocuments->OpenFile(f.MakeFile("large.vsk", MakeRandomContent(1, 9000)));

        QVERIFY(!isOpen);
        QCOMPARE(f.pDocuments->GetDocument().GetName(), QString("sample"));
        QCOMPARE(f.sketch.GetEntities().size(), std::size_t(4));
    }

    void aFileDroppedOnTheWindowIsOpened()
    {
        DocumentsFixture& f = *m_pFixture;
        const QString path = f.MakeFile("sample.vsk");

        const bool isTaken = Drop(path);

        QVERIFY(isTaken);
        QTRY_COMPARE(f.sketch.GetEntities().size(), std::size_t(4));
    }

    void onlyDrawingsCanBeDropped() { QVERIFY(!Drop(m_pFixture->File("picture.png"))); }

    void aRecentFileIsOpenedFromTheMenu()
    {
        DocumentsFixture& f = *m_pFixture;
        OpenSample();
        f.Run(L"Sketcher.New");
        f.pWindow->show();
        f.Run(L"Sketcher.Recent");
        auto* pMenu = f.pWindow->findChild<QMenu*>("Sketcher.RecentFiles");
        QVERIFY(pMenu != nullptr);
        QCOMPARE(pMenu->actions().size(), 1);

        pMenu->actions().front()->trigger();

        QTRY_COMPARE(f.sketch.GetEntities().size(), std::size_t(4));
    }

    void theJournalHoldsDigestsAndNoPaths()
    {
        DocumentsFixture& f = *m_pFixture;
        const QByteArray bytes = vesk::ReadBytes(f.MakeFile("sample.vsk"));
        OpenSample();
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
        OpenSample();
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

    void aMessageShowsWhatLooksLikeMarkupAsItIs()
    {
        bool isPlain = false;
        m_pFixture->user.Do([&isPlain](QDialog& dialog) {
            const auto* pDetails = dialog.findChild<QLabel*>("qt_msgbox_informativelabel");
            isPlain = pDetails != nullptr && pDetails->textFormat() == Qt::PlainText;
            dialog.reject();
        });

        DocumentDialogs::Tell(m_pFixture->pWindow.get(), "text", "<b>details</b>");

        QVERIFY(isPlain);
    }

    void aPathThatIsNoFileIsTold_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<QString>("reason");

        QTest::newRow("missing") << "none/a.vsk"
                                 << "无法读取文件。文件不存在。";
        QTest::newRow("endless device") << "/dev/zero"
                                        << "无法读取文件。这不是普通文件。";
    }

    void aPathThatIsNoFileIsTold()
    {
        QFETCH(QString, path);
        DocumentsFixture& f = *m_pFixture;
        f.user.Press("确定");

        const bool isOpen = f.pDocuments->OpenFile(QDir(f.folder.path()).absoluteFilePath(path));

        QVERIFY(!isOpen);
        QTEST(f.user.GetLastText().section("”", -1), "reason");
    }

    void theOwnFileStaysLockedWhenItIsOpenedAgain()
    {
        DocumentsFixture& f = *m_pFixture;
        OpenSample();

        const bool isOpen = f.pDocuments->OpenFile(f.File("sample.vsk"));

        QVERIFY(isOpen);
        QVERIFY(QFileInfo::exists(f.File(".sample.vsk.lock")));
        f.Draw();
        f.Run(L"Sketcher.Save");
        QVERIFY(!f.pDocuments->IsModified());
    }

    void theWindowCanBeClosedAfterWorkThatFails()
    {
        DocumentsFixture& f = *m_pFixture;
        f.progress = [](std::size_t, std::size_t) -> bool { throw std::runtime_error("failed"); };
        const QString path = f.MakeFile("large.vsk", MakeRandomContent(1, 9000));

        QVERIFY_EXCEPTION_THROWN(f.pDocuments->OpenFile(path), std::runtime_error);

        QVERIFY(f.pWindow->close());
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

private:
    void OpenSample(const QString& name = "sample.vsk")
    {
        QVERIFY(QDir().mkpath(QFileInfo(m_pFixture->File(name)).path()));
        QVERIFY(m_pFixture->pDocuments->OpenFile(m_pFixture->MakeFile(name)));
    }

    bool Drop(const QString& path)
    {
        QMimeData data;
        data.setUrls({QUrl::fromLocalFile(path)});
        QDragEnterEvent enter({10, 10}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        enter.setAccepted(false);
        QCoreApplication::sendEvent(m_pFixture->pWindow.get(), &enter);
        QDropEvent drop({10, 10}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        drop.setAccepted(false);
        QCoreApplication::sendEvent(m_pFixture->pWindow.get(), &drop);
        return enter.isAccepted() && drop.isAccepted();
    }

    static QString Parameter(const vesk::CommandRecord& record, const wchar_t* name)
    {
        const vesk::CommandParameterValue* pValue = record.parameters.Find(name);
        return QString::fromStdWString(std::get<std::wstring>(pValue->Get()));
    }

    std::unique_ptr<DocumentsFixture> m_pFixture;
};

VESK_TESTS(DocumentsTest);
#include "DocumentsTest.moc"
