#include "SketcherProcess.h"
#include "Support/Platform/FileLinks.h"
#include "Support/Platform/UserFolders.h"
#include "Support/TestValues.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <filesystem>

namespace vesk
{

namespace
{

/// The program with its libraries in a folder of its own, and a home folder beside it.
class CarriedProgram final
{
public:
    explicit CarriedProgram(bool hasData)
    {
        const QDir built(QCoreApplication::applicationDirPath() + QStringLiteral("/.."));
        QDir root(m_folder.path());
        root.mkpath(QStringLiteral("program/bin"));
        // Windows has the libraries beside the program.
        const QDir programs(built.filePath("bin"));
        for (const QString& file : programs.entryList({"sketcher", "sketcher.exe", "*.dll"}))
            QFile::copy(programs.filePath(file), root.filePath("program/bin/" + file));
        for (const QString& part : {QStringLiteral("lib"), QStringLiteral("share")})
            LinkOrCopy(QFileInfo(built.filePath(part)).canonicalFilePath(),
                       root.filePath(QStringLiteral("program/") + part));
        // Many have one, for other things.
        root.mkpath(QStringLiteral("program/data"));
        if (hasData)
            root.mkpath(QStringLiteral("program/sketcher-data"));
    }

    QString Program() const { return m_folder.filePath(QStringLiteral("program/bin/sketcher")); }

    /// Opens the window and ends the program as a session manager does.
    Outcome Run() const
    {
        QStringList environment;
        for (const auto& [pName, value] : Home().variables)
            environment << QLatin1String(pName) + '=' + value;
        RunningSketcher program(Program(), m_folder.filePath(QStringLiteral("ui.json")),
                                environment);
        return program.Terminate();
    }

    bool Has(const QString& path) const { return QFileInfo::exists(m_folder.filePath(path)); }

    test::UserFolders Home() const { return test::UserFolders::Below(m_folder.filePath("home")); }

private:
    static void LinkOrCopy(const QString& source, const QString& target)
    {
        if (!test::MakeLink(source, target))
            std::filesystem::copy(source.toStdString(), target.toStdString(),
                                  std::filesystem::copy_options::recursive);
    }

    QTemporaryDir m_folder;
};

}

class PortableTest final : public QObject
{
    Q_OBJECT

private slots:
    void keepsWhatBelongsToTheUserInItsDataFolderIfThatExists()
    {
        const CarriedProgram program(true);

        const Outcome outcome = program.Run();

        QCOMPARE(outcome.code, 0);
        QVERIFY(program.Has("program/sketcher-data/layout.json"));
        QVERIFY(program.Has("program/sketcher-data/journals"));
        QVERIFY(!program.Has("home"));
    }

    void keepsItInTheHomeFolderOtherwise()
    {
        const CarriedProgram program(false);

        const Outcome outcome = program.Run();

        QCOMPARE(outcome.code, 0);
        QVERIFY(!program.Has("program/sketcher-data"));
        QVERIFY(!program.Has("program/data/layout.json"));
        QVERIFY(QFileInfo::exists(program.Home().configuration + "/sketcher/layout.json"));
        QVERIFY(QFileInfo::exists(program.Home().data + "/sketcher/journals"));
    }
};

}

VESK_TESTS_WITHOUT_WINDOWS(vesk::PortableTest);
#include "PortableTest.moc"
