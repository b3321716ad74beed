#include "JournalTestText.h"

#include "JournalReports.h"

#include <filesystem>

using namespace vesk;

namespace
{

constexpr char Template[] = R"(#include "ScenarioTest.h"
#include "SketcherProcess.h"
#include "Support/TestValues.h"

/// A session that was recorded.
class @NAME@Test final : public ScenarioTest
{
    Q_OBJECT

private slots:
    void theSessionIsReplayed()
    {
        const QString journal = QStringLiteral(VESK_JOURNALS "/@FILE@");
        const QString again = m_pFixture->File("again");

        const Outcome outcome = RunSketcher({"--replay", journal, "--journal", again});

        QCOMPARE(outcome.code, 0);
        QCOMPARE(outcome.error, QString());
        QVERIFY(ReadBytes(again).contains("@DIGEST@"));
    }
};

VESK_TESTS(@NAME@Test);
#include "@NAME@Test.moc"
)";

std::string LastDigest(const JournalText& journal)
{
    std::string digest;
    for (const JournalLine& line : journal.lines)
    {
        if (const auto* pMark = std::get_if<MarkRecord>(&line.record.what))
            digest = pMark->digest;
    }
    return digest;
}

void Replace(std::string& text, const std::string& placeholder, const std::string& value)
{
    for (std::size_t at = text.find(placeholder); at != std::string::npos;
         at = text.find(placeholder, at + value.size()))
        text.replace(at, placeholder.size(), value);
}

}

std::string MakeTestText(const std::string& name, const std::string& path,
                         const JournalText& journal)
{
    const std::string digest = LastDigest(journal);
    if (digest.empty())
        return {};
    std::string text = Template;
    Replace(text, "@NAME@", name);
    Replace(text, "@FILE@", std::filesystem::u8path(path).filename().u8string());
    Replace(text, "@DIGEST@", digest);
    return text;
}
