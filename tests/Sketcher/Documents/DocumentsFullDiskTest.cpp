#include "Documents/Documents.h"

#include "Documents/DocumentsFixture.h"
#include "Support/FileSizeLimit.h"
#include "Support/TestValues.h"

#include <QDir>

class DocumentsFullDiskTest final : public QObject
{
    Q_OBJECT

private slots:
    void aFullDiskLeavesTheOldFile()
    {
        DocumentsFixture f;
        QVERIFY(f.OpenSample());
        const QByteArray before = vesk::ReadBytes(f.File("sample.vsk"));
        f.Draw();
        f.user.Press("确定");

        {
            const vesk::FileSizeLimit limit(100);
            f.Run(L"Sketcher.Save");
        }

        QCOMPARE(f.user.GetLastText(),
                 "无法保存“" + f.File("sample.vsk") + "”写入时出错，原文件保持不变。");
        QCOMPARE(vesk::ReadBytes(f.File("sample.vsk")), before);
        QVERIFY(f.pDocuments->IsModified());
        QCOMPARE(QDir(f.folder.path()).entryList(QDir::Files), QStringList{"sample.vsk"});
        QVERIFY2(f.EndOfSaving().isRefused, "the journal tells that it was saved");
        QCOMPARE(f.user.GetFaults(), QStringList());
    }
};

VESK_TESTS(DocumentsFullDiskTest);
#include "DocumentsFullDiskTest.moc"
