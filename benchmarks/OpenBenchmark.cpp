// Whether a journal is replayed in the window, while it lives, in little more time than without.

#include "Harness/Question.h"

#include "Options.h"
#include "Session.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QTemporaryDir>
#include <QTimer>

#include <fstream>
#include <random>
#include <string>

namespace
{

/// A journal in which so many lines are drawn one after another, crosswise over a sheet.
QString WriteJournal(const QTemporaryDir& folder, long lines)
{
    std::mt19937 random(11);
    const QString path = folder.filePath(QString::number(lines));
    std::ofstream journal(path.toStdString());
    journal << R"({"n":0,"kind":"journal","version":2,"program":"sketcher 0.1.0",)"
            << R"("time":"2026-01-01T00:00:00.000Z"})" << '\n'
            << R"({"n":1,"kind":"command","id":"Sketcher.Line","parameters":{}})" << '\n';
    for (long i = 0; i <= lines; ++i)
        journal << R"({"n":)" << i + 2 << R"(,"kind":"point","point":[)" << random() % 1600 << ','
                << random() % 1000 << R"(,0.0]})" << '\n';
    journal << R"({"n":1,"kind":"end","result":"done"})" << '\n';
    return path;
}

Options OptionsOf(const QTemporaryDir& folder)
{
    Options options;
    options.journal = folder.filePath(QStringLiteral("continued"));
    options.log = folder.filePath(QStringLiteral("log"));
    return options;
}

void RunSession(const Options& options)
{
    Session session(options);
    if (session.Run() != 0)
        qFatal("the session failed");
}

/// Closes the window as soon as so many entities are listed and the ribbon can be used again.
class Closer final
{
public:
    explicit Closer(long entities)
    {
        constexpr int IntervalMs = 20;
        m_timer.start(IntervalMs);
        QObject::connect(&m_timer, &QTimer::timeout, [entities] {
            for (QWidget* pWindow : QApplication::topLevelWidgets())
            {
                const auto* pList = pWindow->findChild<QAbstractItemView*>("Entities");
                if (pList != nullptr && pList->isEnabled() &&
                    pList->model()->rowCount() == entities)
                    pWindow->close();
            }
        });
    }

private:
    QTimer m_timer;
};

void Compare(Question& question, long entities)
{
    // Neither is destroyed: the sides are kept as long as the program runs.
    static const auto* s_pFolder = new QTemporaryDir;
    const QString journal = WriteJournal(*s_pFolder, entities);
    question
        .Ours([journal, entities](Stopwatch& stopwatch) {
            Options options = OptionsOf(*s_pFolder);
            options.open = journal;
            const Closer closer(entities);
            stopwatch.Time([&] { RunSession(options); });
        })
        .Limit([journal](Stopwatch& stopwatch) {
            Options options = OptionsOf(*s_pFolder);
            options.task = Options::Task::Replay;
            options.replay = journal;
            stopwatch.Time([&] { RunSession(options); });
        })
        .TimeAtMost(1.3)
        .Rounds(5);
}

}

void AskQuestions()
{
    Compare(Ask("S11 opening 100,000 entities in the window, by --replay"), 100000);
}
