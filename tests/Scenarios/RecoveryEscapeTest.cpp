#include "RecoveryUser.h"
#include "ScenarioTest.h"
#include "ScriptedUser.h"

#include "Model/Sketch.h"
#include "Recovery/JournalFolder.h"
#include "SessionJournal.h"

#include "Journal/JournalFormat.h"
#include "Support/ScopedVariable.h"
#include "Support/TestValues.h"

#include <QDir>
#include <QProgressBar>

namespace
{

bool IsGoingOn()
{
    const auto* pBar = ScriptedUser::FindWindow()->findChild<QProgressBar*>("Sketcher.Progress");
    return pBar != nullptr && pBar->isVisible();
}

}

/// Going on with unsaved work that takes long, and the user's second thoughts.
class RecoveryEscapeTest final : public ScenarioTest
{
    Q_OBJECT

private slots:
    void initTestCase() { QCoreApplication::setApplicationName(QStringLiteral("sketcher")); }

    void escapeLeavesTheOfferAndAnEmptyDrawing()
    {
        const QString journal = MakeLongJournal();
        const QByteArray before = ReadBytes(journal);
        int entities = -1;
        QString offer;
        ScriptedUser user;
        user.Until(&IsOffered).Do([&offer] { offer = FindOffer()->text(); }).Click("RecoveryGoOn");
        user.Until(&IsGoingOn).Press(Qt::Key_Escape).Until([] { return !IsGoingOn(); });
        user.Until(&IsOffered).Do([&] {
            QCOMPARE(FindOffer()->text(), offer);
            entities = CountShown();
        });

        QCOMPARE(RunAndDiscard(user, Options()), 0);

        QCOMPARE(entities, 0);
        QCOMPARE(ReadBytes(journal), before);
        QVERIFY(!JournalFolder::IsSettled(journal));
    }

    void goingOnAgainAfterEscapeRestoresAll()
    {
        const QString journal = MakeLongJournal();
        int entities = -1;
        ScriptedUser user;
        user.Until(&IsOffered).Click("RecoveryGoOn");
        user.Until(&IsGoingOn).Press(Qt::Key_Escape).Until([] { return !IsGoingOn(); });
        user.Until(&IsOffered).Click("RecoveryGoOn").Until(&IsNothingOffered);
        user.Until([] { return !IsGoingOn() && CountShown() == LineCount; });
        user.Do([&entities] { entities = CountShown(); });

        QCOMPARE(RunAndDiscard(user, Options()), 0);

        QCOMPARE(entities, LineCount);
        QVERIFY(JournalFolder::IsSettled(journal));
    }

private:
    static constexpr int LineCount = 20000;

    static int CountShown()
    {
        const auto* pCount = ScriptedUser::FindWindow()->findChild<QLabel*>("Sketcher.EntityCount");
        return pCount->text().section(QStringLiteral("："), 1).toInt();
    }

    /// The journal of a session that drew many lines and crashed.
    static QString MakeLongJournal()
    {
        using namespace vesk;
        const QString folder = SessionJournal::GetFolder().GetPath();
        QDir().mkpath(folder);
        const QString path = folder + QStringLiteral("/long.jsonl");
        std::string text = JournalFormat::ToLine({0, HeaderRecord()}) + '\n';
        int number = 0;
        const auto add = [&](const auto& record) {
            text += JournalFormat::ToLine({++number, record}) + '\n';
        };
        Sketch sketch;
        add(CommandRecord{L"Sketcher.Line", {}});
        add(PointRecord{Vector3d::Zero(), {}});
        add(MarkRecord{sketch.GetDigest(), {}});
        Vector3d end = Vector3d::Zero();
        for (int i = 1; i <= LineCount; ++i)
        {
            const Vector3d start = end;
            end = Vector3d(i % 200, i / 200, 0);
            sketch.AddLine(start, end);
            add(PointRecord{end, {}});
            add(MarkRecord{sketch.GetDigest(), {}});
        }
        WriteFile(path, QByteArray::fromStdString(text));
        return path;
    }

    const ScopedVariable m_attended{"VESK_UNATTENDED", QString()};
};

VESK_TESTS(RecoveryEscapeTest);
#include "RecoveryEscapeTest.moc"
