#pragma once

#include "Drawing.h"
#include "ScenarioFixture.h"
#include "SketcherProcess.h"
#include "Support/TestValues.h"

#include <QObject>

#include <memory>
#include <vector>

/// Base of the scenarios: each test function has files of its own, and must not raise a warning.
class ScenarioTest : public QObject
{
    Q_OBJECT

protected:
    using Selections = std::vector<std::vector<int>>;

    QString Journal() const { return m_pFixture->File(QStringLiteral("journal")); }
    QVector<DrawnLine> Model() const { return ReadLines(ModelFile()); }

    /// The entities of each selection in the journal.
    Selections Selected() const
    {
        Selections selections;
        for (const auto& record : RecordsOf<vesk::SelectionRecord>(ReadJournal(Journal())))
            selections.push_back(record.entities);
        return selections;
    }

    /// Verifies that a replay of the journal makes the same model, to the last byte.
    void VerifyReplay() const
    {
        const QString replayed = m_pFixture->File(QStringLiteral("replayed"));
        const Outcome outcome = RunSketcher({"--replay", Journal(), "--model", replayed});
        QCOMPARE(outcome.code, 0);
        QCOMPARE(outcome.error, QString());
        QCOMPARE(ReadBytes(replayed), ReadBytes(ModelFile()));
    }

    std::unique_ptr<ScenarioFixture> m_pFixture;

protected slots:
    void init() { m_pFixture = std::make_unique<ScenarioFixture>(); }

    void cleanup()
    {
        QCOMPARE(m_pFixture->GetWarnings(), QStringList());
        m_pFixture.reset();
    }

private:
    QString ModelFile() const { return m_pFixture->File(QStringLiteral("model")); }
};
