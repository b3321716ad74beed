// Whether a large drawing is saved, and a long journal replayed, without a wait that somebody
// notices.

#include "Harness/Question.h"
#include "SampleDrawing.h"

#include "Documents/DocumentWork.h"
#include "Model/DocumentFile.h"
#include "Model/Sketch.h"
#include "Options.h"
#include "Session.h"

#include "Foundation/FileRewriting.h"
#include "Journal/JournalFormat.h"

#include <QTemporaryDir>

#include <cstdlib>
#include <optional>
#include <random>
#include <string>
#include <utility>

using namespace vesk;

namespace
{

constexpr int Entities = 100000;

const SketchContent& Drawing()
{
    static const SketchContent s_content = MakeSampleDrawing(Entities);
    return s_content;
}

void AskAboutSaving()
{
    Ask("S8 save 100,000 entities")
        .Ours([](Stopwatch& stopwatch) {
            const QTemporaryDir folder;
            const QString path = folder.filePath("drawing.vsk");
            static const std::string s_digest = DigestOf(Drawing()).ToText();
            stopwatch.Time([&path] {
                if (!DocumentWork::WriteFile(Drawing(), s_digest, path, {}).fault.isEmpty())
                    std::abort();
            });
        })
        .MillisecondsAtMost(150)
        .WithoutInstructions();
}

/// A journal of a line with many points, each with the digest of the drawing after it.
QString WriteJournal(const QString& path, int points)
{
    Sketch sketch;
    std::mt19937 random(1);
    std::uniform_real_distribution<> anywhere(0, 100000);
    std::string text = JournalFormat::ToLine({0, HeaderRecord()}) + '\n';
    auto add = [&text, number = 0](decltype(JournalRecord::what) what) mutable {
        JournalFormat::AppendLine({++number, std::move(what)}, text);
        text += '\n';
    };
    add(CommandRecord{L"Sketcher.Line", {}});
    std::optional<Vector3d> last;
    for (int i = 0; i < points; ++i)
    {
        const Vector3d point(anywhere(random), anywhere(random), 0);
        if (last.has_value())
            sketch.AddLine(*last, point);
        last = point;
        add(PointRecord{point, std::nullopt});
        add(MarkRecord{sketch.GetDigest(), i});
    }
    text += JournalFormat::ToLine({1, EndRecord{1, false}}) + '\n';
    RewriteFile(path.toStdString(), text);
    return path;
}

void AskAboutReplaying()
{
    constexpr int Points = 50000;
    Ask("S8 replay 100,000 records, with digests")
        .Ours([](Stopwatch& stopwatch) {
            static const QTemporaryDir s_folder;
            static const QString s_path = WriteJournal(s_folder.filePath("journal"), Points);
            Session session(ParseOptions({"sketcher", "--replay", s_path}));
            stopwatch.Time([&session] {
                if (session.Run() != 0)
                    std::abort();
            });
        })
        .MillisecondsAtMost(1000)
        .WithoutInstructions();
}

}

void AskQuestions()
{
    AskAboutReplaying();
    AskAboutSaving();
}
