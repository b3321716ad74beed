#include "Documents/Documents.h"

#include "Documents/DocumentDialogs.h"
#include "Documents/DocumentsFixture.h"
#include "Model/Selection.h"
#include "Support/Platform/SpecialFiles.h"
#include "Support/TestValues.h"

#include <QDir>
#include <QDropEvent>
#include <QFileInfo>
#include <QLabel>
#include <QMimeData>
#include <QSignalSpy>
#include <QUrl>

#include <algorithm>

/// What is opened, refused, locked and dropped.
class DocumentsOpeningTest final : public QObject
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
                                 << "文件第 2 行有错误。文件保持原样。";
        QTest::newRow("empty") << QByteArray() << "文件第 1 行有错误。文件保持原样。";
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
        QVERIFY(m_pFixture->OpenSample());
        f.user.ChooseFile(path).Press("确定");

        f.Run(L"Sketcher.Open");

        QCOMPARE(f.user.GetLastText(), "无法打开“" + QDir::toNativeSeparators(path) + "”" + reason);
        QCOMPARE(vesk::ReadBytes(path), bytes);
        QCOMPARE(f.pDocuments->GetDocument().GetName(), QString("sample"));
        QCOMPARE(f.sketch.GetEntities().size(), std::size_t(4));
        QVERIFY(!QFileInfo::exists(f.File(".bad.vsk.lock")));
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
                                 << "文件不存在。";
        // Windows does not list devices as files.
        const bool isListed = QSysInfo::kernelType() != "winnt";
        QTest::newRow("endless device")
            << vesk::test::EndlessDevice() << (isListed ? "这不是普通文件。" : "文件不存在。");
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

    void aFileThatCannotBeKeptBesideTheJournalIsNotOpened()
    {
        DocumentsFixture& f = *m_pFixture;
        QVERIFY(vesk::WriteBytes(f.File("journal.kept"), "no folder"));
        KeptContent::Get().SetJournal(f.File("journal"));
        f.user.Press("确定");

        QVERIFY(!f.pDocuments->OpenFile(f.MakeFile("sample.vsk")));

        QVERIFY(f.user.GetLastText().contains("日志旁无法保留该文件的副本"));
        QVERIFY(f.sketch.GetEntities().empty());
    }

    void aFileThatIsOpenElsewhereIsToldAndOpenedReadOnly()
    {
        DocumentsFixture& f = *m_pFixture;
        const QString path = f.MakeFile("sample.vsk");
        const DocumentLock other(path);
        f.user.ChooseFile(path).Press("以只读方式打开").ChooseFile(f.File("mine.vsk"));

        f.Run(L"Sketcher.Open");
        const bool isReadOnly = f.pDocuments->GetDocument().isReadOnly;
        const bool isShown = IsShown("只读");
        f.Run(L"Sketcher.Save");

        QVERIFY(isReadOnly);
        QVERIFY(isShown);
        QVERIFY(!IsShown("只读"));
        QVERIFY(f.user.GetTexts().value(1).startsWith("“sample.vsk”已在另一个程序中打开。"));
        QCOMPARE(f.pDocuments->GetDocument().GetName(), QString("mine"));
        QVERIFY(!f.pDocuments->GetDocument().isReadOnly);
    }

    void aReadOnlyFileIsAskedAboutBeforeItIsReplaced()
    {
        DocumentsFixture& f = *m_pFixture;
        const QString path = f.MakeFile("sample.vsk");
        auto pOther = std::make_unique<DocumentLock>(path);
        f.user.ChooseFile(path).Press("以只读方式打开").ChooseFile(path).Press("取消");
        f.Run(L"Sketcher.Open");
        pOther.reset();

        f.Run(L"Sketcher.Save");

        QVERIFY(f.user.GetLastText().startsWith("“sample.vsk”已经存在。"));
    }

    void aReadOnlyFileThatIsFreeAgainIsLockedWhenItIsOpenedAgain()
    {
        DocumentsFixture& f = *m_pFixture;
        const QString path = f.MakeFile("sample.vsk");
        auto pOther = std::make_unique<DocumentLock>(path);
        f.user.Press("以只读方式打开");
        QVERIFY(f.pDocuments->OpenFile(path));
        pOther.reset();

        QVERIFY(f.pDocuments->OpenFile(path));

        QVERIFY(!f.pDocuments->GetDocument().isReadOnly);
    }

    void aFileWithoutALockIsOpenedAndSaysSo()
    {
        DocumentsFixture& f = *m_pFixture;
        // Together with the ending of the lock the name is too long.
        const QString path = f.MakeFile(QString(248, 'a') + ".vsk");

        QVERIFY(f.pDocuments->OpenFile(path));

        QVERIFY(IsShown("文件未加锁"));
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
        QVERIFY(m_pFixture->OpenSample());
        m_pFixture->Draw();
        m_pFixture->user.Press("不保存").ChooseFile(m_pFixture->File("sample.vsk"));

        m_pFixture->Run(L"Sketcher.Open");

        QCOMPARE(m_pFixture->sketch.GetEntities().size(), std::size_t(4));
        QVERIFY(!m_pFixture->pDocuments->GetDocument().isReadOnly);
        QCOMPARE(DocumentLock(m_pFixture->File("sample.vsk")).GetState(),
                 DocumentLock::State::InUse);
    }

    void aLargeDrawingIsOpenedAndSavedWhileTheWindowLives()
    {
        DocumentsFixture& f = *m_pFixture;
        QVERIFY(m_pFixture->OpenSample());
        QCOMPARE(f.workCount, 0);
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
        QVERIFY(m_pFixture->OpenSample());
        f.progress = [](std::size_t done, std::size_t) { return done < 100; };

        const bool isOpen =
            f.pDocuments->OpenFile(f.MakeFile("large.vsk", MakeRandomContent(1, 9000)));

        QVERIFY(!isOpen);
        QCOMPARE(f.pDocuments->GetDocument().GetName(), QString("sample"));
        QCOMPARE(f.sketch.GetEntities().size(), std::size_t(4));
    }

    void whileAFileIsReadTheWindowStaysAndNothingCanBeDropped()
    {
        DocumentsFixture& f = *m_pFixture;
        const QString path = f.MakeFile("large.vsk", MakeRandomContent(1, 9000));
        bool isClosed = false;
        int accepted = 0;
        f.progress = [&](std::size_t done, std::size_t) {
            isClosed = isClosed || (done == 0 && f.pWindow->close());
            accepted += done == 0 ? Drop(f.File("other.vsk")) : 0;
            return true;
        };

        QVERIFY(f.pDocuments->OpenFile(path));

        QVERIFY(!isClosed);
        QCOMPARE(accepted, 0);
    }

    void nothingIsOpenedInAProgramThatEnds()
    {
        DocumentsFixture& f = *m_pFixture;
        f.progress = [&f](std::size_t, std::size_t) {
            f.pDocuments->EndWithoutQuestions();
            return true;
        };

        QVERIFY(!f.pDocuments->OpenFile(f.MakeFile("large.vsk", MakeRandomContent(1, 9000))));

        QVERIFY(f.sketch.GetEntities().empty());
    }

    void aFileDroppedOnTheWindowIsOpened()
    {
        DocumentsFixture& f = *m_pFixture;
        const QString path = f.MakeFile("sample.vsk");

        const int accepted = Drop(path);

        QCOMPARE(accepted, 2);
        QTRY_COMPARE(f.sketch.GetEntities().size(), std::size_t(4));
    }

    void onlyOneDrawingCanBeDropped()
    {
        QCOMPARE(Drop(m_pFixture->File("A.VSK")), 2);
        QCOMPARE(Drop(m_pFixture->File("picture.png")), 0);
        QCOMPARE(Drop(m_pFixture->File("a.vsk"), m_pFixture->File("b.vsk")), 0);
        m_pFixture->user.Press("确定");
        QTRY_VERIFY(!m_pFixture->user.HasAnswersLeft());
    }

private:
    bool IsShown(const QString& state) const
    {
        const QList<QLabel*> labels = m_pFixture->pWindow->findChildren<QLabel*>();
        return std::any_of(labels.begin(), labels.end(),
                           [&state](const QLabel* pLabel) { return pLabel->text() == state; });
    }

    /// How many of the two events of a drop are accepted.
    int Drop(const QString& path, const QString& other = {})
    {
        QMimeData data;
        QList<QUrl> urls = {QUrl::fromLocalFile(path)};
        if (!other.isEmpty())
            urls << QUrl::fromLocalFile(other);
        data.setUrls(urls);
        QDragEnterEvent enter({10, 10}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        enter.setAccepted(false);
        QCoreApplication::sendEvent(m_pFixture->pWindow.get(), &enter);
        QDropEvent drop({10, 10}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        drop.setAccepted(false);
        QCoreApplication::sendEvent(m_pFixture->pWindow.get(), &drop);
        return int(enter.isAccepted()) + int(drop.isAccepted());
    }

    std::unique_ptr<DocumentsFixture> m_pFixture;
};

VESK_TESTS(DocumentsOpeningTest);
#include "DocumentsOpeningTest.moc"
