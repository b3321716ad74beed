#include "Documents/RecentFiles.h"

#include "Support/FileBytes.h"
#include "Support/TestValues.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <algorithm>

class RecentFilesTest final : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_pFolder = std::make_unique<QTemporaryDir>(); }

    void theLastFileComesFirstAndEachOnce()
    {
        RecentFiles recent(List());
        recent.Add(MakeFile("a"));
        recent.Add(MakeFile("b"));

        recent.Add(MakeFile("a"));

        QCOMPARE(recent.Get(), (QStringList{MakeFile("a"), MakeFile("b")}));
    }

    void aFileIsKnownByItsWholePath()
    {
        const QString before = QDir::currentPath();
        const QString path = MakeFile("a");
        QVERIFY(QDir::setCurrent(m_pFolder->path()));

        RecentFiles(List()).Add(QFileInfo(path).fileName());

        QVERIFY(QDir::setCurrent(before));
        QCOMPARE(RecentFiles(List()).Get(), QStringList{path});
    }

    void theListOutlivesTheProgram()
    {
        RecentFiles(List()).Add(MakeFile("a"));

        QCOMPARE(RecentFiles(List()).Get(), QStringList{MakeFile("a")});
    }

    void theListIsPlainAscii()
    {
        RecentFiles(List()).Add(MakeFile("a"));

        const QByteArray list = vesk::ReadBytes(List());
        QVERIFY(list.contains("file://"));
        QVERIFY2(!list.contains('\\'), list.constData());
        QVERIFY2(std::all_of(list.begin(), list.end(), [](char byte) { return byte > 0; }),
                 list.constData());
    }

    void theListOfAnEarlierProgramIsRead()
    {
        const QString path = MakeFile("a");
        const QString other = MakeFile("b");
        const auto escaped = [](QString file) { return file.replace("ü", "\\xfc").toLatin1(); };
        QVERIFY(vesk::WriteBytes(List(), "[General]\nfiles=\"" + escaped(path) + "\", \"" +
                                             escaped(other) + "\"\n"));

        QCOMPARE(RecentFiles(List()).Get(), (QStringList{path, other}));
    }

    void aFileThatIsGoneIsLeftOut()
    {
        RecentFiles recent(List());
        recent.Add(MakeFile("a"));

        QVERIFY(QFile::remove(MakeFile("a")));

        QCOMPARE(recent.Get(), QStringList());
    }

    void onlyTheLastTenAreKept()
    {
        RecentFiles recent(List());

        for (int i = 0; i < 12; ++i)
            recent.Add(MakeFile(QString::number(i)));

        QCOMPARE(recent.Get().size(), 10);
        QCOMPARE(recent.Get().last(), MakeFile("2"));
    }

private:
    QString List() const { return m_pFolder->filePath("recent.ini"); }

    QString MakeFile(const QString& name) const
    {
        const QString path = m_pFolder->filePath(name + ", ü.vsk");
        return vesk::WriteBytes(path, "x") ? path : QString();
    }

    std::unique_ptr<QTemporaryDir> m_pFolder;
};

VESK_TESTS_WITHOUT_WINDOWS(RecentFilesTest);
#include "RecentFilesTest.moc"
