#include "SketcherProcess.h"
#include "Support/TestValues.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

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
        QFile::copy(built.filePath(QStringLiteral("bin/sketcher")), Program());
        for (const QString& part : {QStringLiteral("lib"), QStringLiteral("share")})
            QFile::link(QFileInfo(built.filePath(part)).canonicalFilePath(),
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
        const QStringList environment = {QStringLiteral("HOME=") + m_folder.filePath("home"),
                                         QStringLiteral("XDG_CONFIG_HOME="),
                                         QStringLiteral("XDG_DATA_HOME=")};
        RunningSketcher program(Program(), m_folder.filePath(QStringLiteral("ui.json")),
                                environment);
        return program.Terminate();
    }

    bool Has(const QString& path) const { return QFileInfo::exists(m_folder.filePath(path)); }

private:
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
        QVERIFY(program.Has("home/.config/sketcher/layout.json"));
        QVERIFY(program.Has("home/.local/share/sketcher/journals"));
    }
};

}

VESK_TESTS_WITHOUT_WINDOWS(vesk::PortableTest);
#include "PortableTest.moc"
