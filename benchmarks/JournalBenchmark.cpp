// Whether a journal record costs little more than the system call that hands it to the operating
// system.

#include "Harness/Question.h"
#include "PlainLines.h"

#include "Journal/JournalFormat.h"
#include "Journal/JournalManager.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTextStream>

#include <cstdlib>
#include <optional>
#include <string>
#include <vector>

using namespace vesk;

namespace
{

constexpr int Records = 2000;

/// The file that the sides write, each anew in each round.
std::string Path()
{
    static const QTemporaryDir s_folder;
    return s_folder.filePath("journal").toStdString();
}

Vector3d PointAt(int i)
{
    return {i * 0.1 + 0.05, 1000.5 / (i + 1), 0.5};
}

void WritePoints(PlainLines& lines)
{
    for (int i = 0; i < Records; ++i)
    {
        const Vector3d point = PointAt(i);
        lines << "{\"n\":" << i + 1 << ",\"kind\":\"point\",\"point\":[" << point.x() << ","
              << point.y() << "," << point.z() << "]}\n";
        lines.Write();
    }
}

void WritePoints(QTextStream& stream)
{
    for (int i = 0; i < Records; ++i)
    {
        const Vector3d point = PointAt(i);
        stream << "{\"n\":" << i + 1 << ",\"kind\":\"point\",\"point\":[" << point.x() << ','
               << point.y() << ',' << point.z() << "]}\n";
        stream.flush();
    }
}

void AskAboutPoints()
{
    Ask("P21 journal record of a point")
        .Ours([](Stopwatch& stopwatch) {
            JournalManager& journal = JournalManager::GetInstance();
            std::string error;
            journal.Open(Path(), error);
            for (int i = 0; i < 32; ++i)
                journal.Add(PointRecord{PointAt(Records + i), std::nullopt});
            stopwatch.Time([&journal] {
                for (int i = 0; i < Records; ++i)
                    journal.Add(PointRecord{PointAt(i), std::nullopt});
            });
            journal.Close();
        })
        .Limit([](Stopwatch& stopwatch) {
            PlainLines lines(Path());
            stopwatch.Time([&lines] { WritePoints(lines); });
        })
        .Peer("QTextStream",
              [](Stopwatch& stopwatch) {
                  QFile file(QString::fromStdString(Path()));
                  file.open(QIODevice::WriteOnly);
                  QTextStream stream(&file);
                  stream.setRealNumberPrecision(17);
                  stopwatch.Time([&stream] { WritePoints(stream); });
              })
        .TimeAtMost(1.5)
        .AheadOfPeer(1.0)
        .AllocationsAtMost(0);
}

/// A journal of points, each with its mark.
std::string WriteJournal(int points)
{
    const std::string path = Path() + ".read";
    PlainLines lines(path);
    lines << "{\"n\":1,\"kind\":\"command\",\"id\":\"Sketcher.Line\"}\n";
    for (int i = 0; i < points; ++i)
    {
        const Vector3d point = PointAt(i);
        lines << "{\"n\":" << 2 * i + 2 << ",\"kind\":\"point\",\"point\":[" << point.x() << ","
              << point.y() << "," << point.z() << "]}\n";
        lines << "{\"n\":" << 2 * i + 3 << ",\"kind\":\"mark\",\"digest\":\""
              << std::string(64, 'a') << "\",\"t\":" << i << "}\n";
        lines.Write();
    }
    return path;
}

void AskAboutReading()
{
    constexpr int Points = 50000;
    Ask("S8 read a journal of 100,000 records")
        .Ours([](Stopwatch& stopwatch) {
            static const std::string s_path = WriteJournal(Points);
            std::vector<JournalRecord> records;
            std::string error;
            stopwatch.Time([&] {
                if (!JournalFormat::ReadFile(s_path, records, error))
                    std::abort();
            });
        })
        .MillisecondsAtMost(500)
        .PeakBytesAtMost(300L * 2 * Points)
        .WithoutInstructions();
}

}

void AskQuestions()
{
    AskAboutReading();
    AskAboutPoints();
}
