#include "Drawing.h"
#include "Model/DocumentFile.h"
#include "ScenarioTest.h"
#include "ScriptedUser.h"
#include "Sketcher/Model/SampleContent.h"
#include "SketcherProcess.h"
#include "SketcherWindow.h"
#include "Support/DialogUser.h"
#include "Support/FileBytes.h"
#include "Support/ScopedVariable.h"
#include "View/SketchView.h"

#include <QDir>
#include <QFileInfo>

using vesk::WriteBytes;

/// Whole sittings with drawing files, and their replays.
class DocumentTest final : public ScenarioTest
{
    Q_OBJECT

private slots:
    void aSittingWithFilesIsReplayed()
    {
        const ScopedVariable attended("VESK_UNATTENDED", {});
        vesk::test::DialogUser answers;
        answers.ChooseFile(Part());
        answers.Press("不保存");
        answers.ChooseFile(Part());
        ScriptedUser user;
        user.DrawLine(0, 0, 100, 0);
        user.Press(Qt::Key_S, Qt::ControlModifier).Until([] { return IsTitled("part"); });
        user.DrawLine(0, 0, 0, 50);
        user.Press(Qt::Key_S, Qt::ControlModifier).Until([] { return !IsModified(); });
        user.DrawLine(10, 10, 20, 20).Until(&IsModified);
        user.Press(Qt::Key_N, Qt::ControlModifier).Until([] { return !IsTitled("part"); });
        user.Do(&Activate).Press(Qt::Key_O, Qt::ControlModifier).Until([] {
            return IsTitled("part");
        });
        user.DrawLine(-10, -10, -30, -40);
        user.Press(Qt::Key_S, Qt::ControlModifier).Until([] { return !IsModified(); });

        QCOMPARE(user.Run(m_pFixture->Draw()), 0);

        QCOMPARE(answers.GetUnexpected(), QStringList());
        QCOMPARE(Model().size(), 3);
        QCOMPARE(EntityCount(Part()), std::size_t(3));
        const QByteArray saved = ReadBytes(Part());
        QVERIFY(QFile::remove(Part()));
        VerifyReplay();
        QVERIFY(!QFileInfo::exists(Part()));
        QVERIFY(saved.contains("\"digest\""));
    }

    void aFileOfTheCommandLineIsOpened()
    {
        MakePart();
        Options options = m_pFixture->Draw();
        options.document = Part();
        ScriptedUser user;
        user.Until([] { return IsTitled("part"); });

        QCOMPARE(user.Run(options), 0);

        QVERIFY(ReadBytes(m_pFixture->File("model")).contains("0.3333333333333333"));
        QVERIFY(QFile::remove(Part()));
        VerifyReplay();
    }

    void aReplayWithoutTheKeptContentStops()
    {
        MakePart();
        Options options = m_pFixture->Draw();
        options.document = Part();
        ScriptedUser user;
        user.Until([] { return IsTitled("part"); });
        QCOMPARE(user.Run(options), 0);
        QVERIFY(QDir(Journal() + ".kept").removeRecursively());

        const Outcome outcome = RunSketcher({"--replay", Journal()});

        QCOMPARE(outcome.code, 3);
        QVERIFY2(outcome.error.contains("Sketcher.OpenContent"), qPrintable(outcome.error));
    }

    void aSecondProgramIsToldWhereAFileIsOpen()
    {
        MakePart();
        const RunningSketcher first({Part()}, m_pFixture->File("tree"));
        QTRY_VERIFY(QFileInfo::exists(m_pFixture->File(".part.vsk.lock")));
        const ScopedVariable attended("VESK_UNATTENDED", {});
        vesk::test::DialogUser answers;
        answers.Press("以只读方式打开");
        Options options = m_pFixture->Draw();
        options.document = Part();
        ScriptedUser user;
        user.Until([] { return IsTitled("part"); });
        user.Do([] { QVERIFY(ScriptedUser::States().contains("只读")); });

        QCOMPARE(user.Run(options), 0);

        QCOMPARE(answers.GetUnexpected(), QStringList());
        QCOMPARE(answers.GetTexts().size(), 1);
    }

    void theFileOfAKilledProgramCanBeOpened()
    {
        MakePart();
        RunningSketcher first({Part()}, m_pFixture->File("tree"));
        QTRY_VERIFY(QFileInfo::exists(m_pFixture->File(".part.vsk.lock")));
        first.Kill();
        Options options = m_pFixture->Draw();
        options.document = Part();
        ScriptedUser user;
        user.Until([] { return IsTitled("part"); });
        user.Do([] { QVERIFY(!ScriptedUser::States().contains("只读")); });

        QCOMPARE(user.Run(options), 0);
    }

    void aDamagedFileIsLeftAlone()
    {
        QVERIFY(WriteBytes(Part(), "{"));
        Options options = m_pFixture->Draw();
        options.document = Part();
        const ScopedVariable attended("VESK_UNATTENDED", {});
        vesk::test::DialogUser answers;
        answers.Press("确定");
        ScriptedUser user;
        user.Until([&answers] { return !answers.HasAnswersLeft(); });

        QCOMPARE(user.Run(options), 0);

        QCOMPARE(ReadBytes(Part()), QByteArray("{"));
    }

    void aProgramThatIsToldToEndReleasesTheFile()
    {
        MakePart();
        RunningSketcher program({"--journal", Journal(), Part()}, m_pFixture->File("tree"));
        QTRY_VERIFY(QFileInfo::exists(m_pFixture->File(".part.vsk.lock")));

        const Outcome outcome = program.Terminate();

        QCOMPARE(outcome.code, 0);
        QCOMPARE(outcome.error, QString());
        QVERIFY(!QFileInfo::exists(m_pFixture->File(".part.vsk.lock")));
    }

private:
    QString Part() const { return m_pFixture->File(QStringLiteral("part.vsk")); }

    void MakePart() const
    {
        QVERIFY(WriteBytes(Part(),
                           QByteArray::fromStdString(DocumentFile::ToText(MakeSampleContent()))));
    }

    static bool IsTitled(const QString& name)
    {
        return ScriptedUser::FindWindow()->windowTitle() == name + "[*] - Sketcher";
    }

    /// As a window manager does after a dialog.
    static void Activate()
    {
        ScriptedUser::FindWindow()->activateWindow();
        ScriptedUser::FindView()->setFocus();
    }

    static bool IsModified() { return ScriptedUser::FindWindow()->isWindowModified(); }

    static std::size_t EntityCount(const QString& path)
    {
        return DocumentFile::FromText(ReadBytes(path).toStdString()).content.entities.size();
    }
};

VESK_TESTS(DocumentTest);
#include "DocumentTest.moc"
