#include "Documents/Documents.h"

#include "Documents/DocumentsFixture.h"
#include "Support/Platform/FileLinks.h"
#include "Support/TestValues.h"

#include <QDir>
#include <QFileInfo>
#include <QLineEdit>
#include <QStatusBar>

namespace
{

/// A file name too long to be locked. Windows removes no folder with a lock in it.
const QString s_unlocked = QString(248, 'a') + ".vsk";

}

/// What is saved, and what is asked before.
class DocumentsSavingTest final : public QObject
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

    void aDrawingIsSavedInTheChosenFile()
    {
        DocumentsFixture& f = *m_pFixture;
        f.Draw();
        f.user.ChooseFile(f.File("part.vsk"));

        f.Run(L"Sketcher.Save");

        QCOMPARE(vesk::ReadBytes(f.File("part.vsk")).toStdString(),
                 DocumentFile::ToText(f.sketch.GetContent()));
        QCOMPARE(f.pDocuments->GetDocument().GetName(), QString("part"));
        QVERIFY(!f.pDocuments->IsModified());
        QVERIFY(!f.EndOfSaving().isRefused);
        QCOMPARE(RecentFiles().Get(), QStringList{f.File("part.vsk")});
        QVERIFY(QFileInfo::exists(f.File(".part.vsk.lock")));
        QCOMPARE(f.pWindow->statusBar()->currentMessage(),
                 "已保存 " + QDir::toNativeSeparators(f.File("part.vsk")));
    }

    void aFileOfAnyNameIsSavedAndOpenedAgain()
    {
        DocumentsFixture& f = *m_pFixture;
        const QString path = f.File("50 %1 “图”.vsk");
        f.Draw();
        f.user.ChooseFile(path);
        f.Run(L"Sketcher.Save");
        f.Run(L"Sketcher.New");

        const bool isOpen = f.pDocuments->OpenFile(path);

        QVERIFY(isOpen);
        QCOMPARE(f.pDocuments->GetDocument().GetName(), QString("50 %1 “图”"));
        QCOMPARE(f.sketch.GetEntities().size(), std::size_t(1));
    }

    void savingGoesThroughALinkAndKeepsThePermissions()
    {
        DocumentsFixture& f = *m_pFixture;
        const QString file = f.MakeFile("sample.vsk");
        const QString link = f.File("link.vsk");
        const QFile::Permissions permissions = QFile::ReadOwner | QFile::WriteOwner;
        QVERIFY(QFile::setPermissions(file, permissions));
        if (!vesk::test::MakeLink(file, link))
            QSKIP(vesk::test::NoLinks);
        QVERIFY(f.pDocuments->OpenFile(link));
        f.Draw();

        f.Run(L"Sketcher.Save");

        QCOMPARE(QFileInfo(link).symLinkTarget(), file);
        QCOMPARE(vesk::ReadBytes(file).toStdString(), DocumentFile::ToText(f.sketch.GetContent()));
        QVERIFY(!(QFile::permissions(file) & (QFile::ReadGroup | QFile::ReadOther)));
    }

    void aNameWithoutEndingGetsIt()
    {
        DocumentsFixture& f = *m_pFixture;
        f.user.ChooseFile(f.File("part"));

        f.Run(L"Sketcher.SaveAs");

        QVERIFY(QFileInfo(f.File("part.vsk")).isFile());
    }

    void savingAgainAsksNothing()
    {
        DocumentsFixture& f = *m_pFixture;
        QVERIFY(m_pFixture->OpenSample());
        f.Draw();
        f.Run(L"Sketcher.Save");
        f.Draw();

        f.Run(L"Sketcher.Save");

        QCOMPARE(f.user.GetTexts(), QStringList());
        QVERIFY(!f.pDocuments->IsModified());
        QCOMPARE(vesk::ReadBytes(f.File("sample.vsk")).toStdString(),
                 DocumentFile::ToText(f.sketch.GetContent()));
    }

    void anExistingFileIsReplacedOnlyIfTheUserAgrees_data()
    {
        QTest::addColumn<QString>("answer");
        QTest::addColumn<bool>("isReplaced");

        QTest::newRow("replace") << "替换" << true;
        QTest::newRow("cancel") << "取消" << false;
    }

    void anExistingFileIsReplacedOnlyIfTheUserAgrees()
    {
        QFETCH(QString, answer);
        DocumentsFixture& f = *m_pFixture;
        QVERIFY(vesk::WriteBytes(f.File("old.vsk"), "old"));
        f.Draw();
        f.user.ChooseFile(f.File("old.vsk")).Press(answer);

        f.Run(L"Sketcher.Save");

        QCOMPARE(f.user.GetLastText(), QString("“old.vsk”已经存在。替换会丢失它现在的内容。"));
        QTEST(vesk::ReadBytes(f.File("old.vsk")) != "old", "isReplaced");
        QTEST(!f.pDocuments->IsModified(), "isReplaced");
    }

    void nothingIsSavedIfNoFileIsChosen()
    {
        DocumentsFixture& f = *m_pFixture;
        QVERIFY(m_pFixture->OpenSample());
        f.Run(L"Sketcher.New");
        f.Draw();
        f.user.Cancel();

        f.Run(L"Sketcher.Save");

        QCOMPARE(QDir(f.folder.path()).entryList({"*.vsk"}), QStringList{"sample.vsk"});
        QVERIFY(f.pDocuments->IsModified());
    }

    void aNameThatNoFileCanHaveIsSuggestedWithoutWhatItCannotHave()
    {
        DocumentsFixture& f = *m_pFixture;
        QVERIFY(m_pFixture->OpenSample());
        f.Run(L"Sketcher.New");
        f.sketch.SetName(L"a/b:c");
        f.user.Do([](QDialog& dialog) { dialog.accept(); });

        f.Run(L"Sketcher.Save");

        QCOMPARE(f.pDocuments->GetDocument().path, f.File("a_b_c.vsk"));
    }

    void aWindowWhoseDrawingCannotBeSavedStays()
    {
        DocumentsFixture& f = *m_pFixture;
        QVERIFY(m_pFixture->OpenSample("gone/" + s_unlocked));
        f.Draw();
        QVERIFY(QDir(f.File("gone")).removeRecursively());
        f.user.Press("保存").Press("确定");

        QVERIFY(!f.pWindow->close());

        QVERIFY(f.pDocuments->IsModified());
    }

    void aSuggestedFileThatExistsIsNotReplacedUnasked()
    {
        DocumentsFixture& f = *m_pFixture;
        f.pDocuments->OpenFile(f.MakeFile("sample.vsk"));
        f.Run(L"Sketcher.New");
        QVERIFY(vesk::WriteBytes(f.File("未命名.vsk"), "old"));
        f.user.Do([](QDialog& dialog) { dialog.accept(); }).Press("取消");

        f.Run(L"Sketcher.Save");

        QCOMPARE(vesk::ReadBytes(f.File("未命名.vsk")), QByteArray("old"));
    }

    void theSuggestedNameSuitsAnyFileSystem_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("suggested");

        QTest::newRow("plain") << "支架 2"
                               << "支架 2.vsk";
        QTest::newRow("none") << ""
                              << "图纸.vsk";
        QTest::newRow("blanks") << " \n "
                                << "图纸.vsk";
        QTest::newRow("reserved") << "a/b\\c:d*e"
                                  << "a_b_c_d_e.vsk";
        QTest::newRow("line break") << "a\nb"
                                    << "a b.vsk";
        QTest::newRow("control") << QString("a") + QChar(0) + "b"
                                 << "a_b.vsk";
        QTest::newRow("hidden") << "..a"
                                << "_.a.vsk";
        QTest::newRow("long") << QString(300, u'图') << QString(60, u'图') + ".vsk";
        QTest::newRow("half a character") << QString(59, u'a') + "📐b" << QString(59, u'a') + ".vsk";
    }

    void theSuggestedNameSuitsAnyFileSystem()
    {
        QFETCH(QString, name);
        DocumentsFixture& f = *m_pFixture;
        f.sketch.SetName(name.toStdWString());
        QString suggested;
        f.user.Do([&suggested](QDialog& dialog) {
            suggested = dialog.findChild<QLineEdit*>("fileNameEdit")->text();
            dialog.reject();
        });

        f.Run(L"Sketcher.SaveAs");

        QTEST(suggested, "suggested");
    }

    void theOwnFileIsReplacedWithoutAQuestion()
    {
        DocumentsFixture& f = *m_pFixture;
        QVERIFY(m_pFixture->OpenSample());
        f.Draw();
        f.user.ChooseFile(f.File("sample.vsk"));

        f.Run(L"Sketcher.SaveAs");

        QVERIFY(!f.pDocuments->IsModified());
    }

    void savingUnderAnotherNameLeavesTheFirstFile()
    {
        DocumentsFixture& f = *m_pFixture;
        QVERIFY(m_pFixture->OpenSample());
        const QByteArray before = vesk::ReadBytes(f.File("sample.vsk"));
        f.Draw();
        f.user.ChooseFile(f.File("other.vsk"));

        f.Run(L"Sketcher.SaveAs");

        QCOMPARE(vesk::ReadBytes(f.File("sample.vsk")), before);
        QCOMPARE(f.pDocuments->GetDocument().GetName(), QString("other"));
        QVERIFY(!QFileInfo::exists(f.File(".sample.vsk.lock")));
    }

    void whatIsUndoneToTheSavedStateIsNotModified()
    {
        QVERIFY(m_pFixture->OpenSample());
        m_pFixture->Draw();
        QVERIFY(m_pFixture->pDocuments->IsModified());

        m_pFixture->sketch.Undo();

        QVERIFY(!m_pFixture->pDocuments->IsModified());
    }

    void aFileThatIsOpenElsewhereIsNotReplaced()
    {
        DocumentsFixture& f = *m_pFixture;
        const DocumentLock other(f.File("other.vsk"));
        f.Draw();
        f.user.ChooseFile(f.File("other.vsk")).Press("确定");

        f.Run(L"Sketcher.Save");

        QVERIFY(!QFileInfo::exists(f.File("other.vsk")));
        QVERIFY(f.pDocuments->IsModified());
    }

    void aFileThatWasChangedElsewhereIsAskedAbout_data()
    {
        QTest::addColumn<QString>("answer");
        QTest::addColumn<bool>("isReplaced");

        QTest::newRow("replace") << "覆盖" << true;
        QTest::newRow("cancel") << "取消" << false;
    }

    void aFileThatWasChangedElsewhereIsAskedAbout()
    {
        QFETCH(QString, answer);
        DocumentsFixture& f = *m_pFixture;
        QVERIFY(m_pFixture->OpenSample());
        QVERIFY(vesk::WriteBytes(f.File("sample.vsk"), "changed"));
        f.Draw();
        f.user.Press(answer);

        f.Run(L"Sketcher.Save");

        QVERIFY(f.user.GetLastText().startsWith("“sample.vsk”打开之后已被其他程序修改。"));
        QTEST(vesk::ReadBytes(f.File("sample.vsk")) != "changed", "isReplaced");
        QTEST(!f.pDocuments->IsModified(), "isReplaced");
    }

    void aFileThatWasChangedElsewhereIsNotReplacedIfNobodyIsThere()
    {
        m_pFixture.reset();
        m_pFixture = std::make_unique<DocumentsFixture>(Documents::Manners::Silent);
        DocumentsFixture& f = *m_pFixture;
        QVERIFY(m_pFixture->OpenSample());
        QVERIFY(vesk::WriteBytes(f.File("sample.vsk"), "changed"));
        f.Draw();

        f.Run(L"Sketcher.Save");

        QCOMPARE(vesk::ReadBytes(f.File("sample.vsk")), QByteArray("changed"));
    }

    void whatIsNoFileIsTold()
    {
        DocumentsFixture& f = *m_pFixture;
        QVERIFY(m_pFixture->OpenSample());
        QVERIFY(QFile::remove(f.File("sample.vsk")));
        QVERIFY(QDir().mkpath(f.File("sample.vsk/content")));
        f.user.Press("覆盖").Press("确定");

        f.Run(L"Sketcher.Save");

        QVERIFY(f.user.GetLastText().endsWith("这不是普通文件。"));
    }

    void unknownFieldsAreSavedAgain()
    {
        DocumentsFixture& f = *m_pFixture;
        SketchContent content = MakeSampleContent();
        content.unknown.document = "{\"plan\":7}";
        f.pDocuments->OpenFile(f.MakeFile("sample.vsk", content));
        f.Draw();

        f.Run(L"Sketcher.Save");

        QVERIFY(vesk::ReadBytes(f.File("sample.vsk")).contains("\"plan\":7"));
    }

    void aMissingFolderIsTold()
    {
        DocumentsFixture& f = *m_pFixture;
        QVERIFY(m_pFixture->OpenSample("gone/" + s_unlocked));
        QVERIFY(QDir(f.File("gone")).removeRecursively());
        f.user.Press("确定");

        f.Run(L"Sketcher.Save");

        QVERIFY(f.user.GetLastText().endsWith("文件夹不存在。"));
    }

    void cancelledSavingChangesNothing()
    {
        DocumentsFixture& f = *m_pFixture;
        const QString path = f.MakeFile("large.vsk", MakeRandomContent(1, 9000));
        f.pDocuments->OpenFile(path);
        const QByteArray before = vesk::ReadBytes(path);
        f.Draw();
        f.progress = [](std::size_t, std::size_t) { return false; };

        f.Run(L"Sketcher.Save");

        QCOMPARE(vesk::ReadBytes(path), before);
        QVERIFY(f.pDocuments->IsModified());
        QVERIFY(f.EndOfSaving().isRefused);
    }

private:
    std::unique_ptr<DocumentsFixture> m_pFixture;
};

VESK_TESTS(DocumentsSavingTest);
#include "DocumentsSavingTest.moc"
