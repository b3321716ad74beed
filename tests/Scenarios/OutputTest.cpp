#include "Drawing.h"
#include "ScenarioTest.h"
#include "ScriptedUser.h"
#include "SketcherProcess.h"
#include "SketcherWindow.h"

#include "Support/FileBytes.h"
#include "Support/ScopedVariable.h"
#include "Support/TestValues.h"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QDir>
#include <QInputDialog>
#include <QLineEdit>
#include <QMessageBox>

#include <array>
#include <memory>

namespace
{

/// Two lines and a text, in no unit. The comment is what some programs take for the end of a text.
const QByteArray s_dxf =
    "0\nSECTION\n2\nENTITIES\n999\n\x1a\n0\nLINE\n8\naxes\n10\n1\n20\n2\n11\n3\n21\n4\n"
    "0\nLINE\n8\n0\n10\n5\n20\n5\n11\n7\n21\n8\n0\nTEXT\n8\n0\n1\nx\n"
    "0\nENDSEC\n0\nEOF\n";

template <class Dialog>
Dialog* Opened()
{
    return qobject_cast<Dialog*>(QApplication::activeModalWidget());
}

bool IsOpen(const char* pName)
{
    const QWidget* pDialog = QApplication::activeModalWidget();
    return pDialog != nullptr && pDialog->objectName() == QLatin1String(pName);
}

void ClickButton(const QString& id)
{
    ScriptedUser::FindButton(id)->click();
}

/// Chooses a file in the open file dialog.
void ChooseFile(const QString& path)
{
    auto* pDialog = Opened<QDialog>();
    pDialog->findChild<QLineEdit*>("fileNameEdit")->setText(path);
    pDialog->accept();
}

QList<QByteArray> LinesWith(const QString& path, const QByteArray& text)
{
    QList<QByteArray> found;
    for (const QByteArray& line : vesk::ReadBytes(path).split('\n'))
    {
        if (line.contains(text))
            found << line;
    }
    return found;
}

}

/// Drawings for other programs and from them, in whole sessions.
class OutputTest final : public ScenarioTest
{
    Q_OBJECT

private slots:
    void init()
    {
        ScenarioTest::init();
        m_pPath = std::make_unique<ScopedVariable>("PATH", QCoreApplication::applicationDirPath() +
                                                               "/../bin" + QDir::listSeparator() +
                                                               qEnvironmentVariable("PATH"));
    }

    void cleanup()
    {
        m_pPath.reset();
        ScenarioTest::cleanup();
    }

    void exportIsRecordedByItsDigestAndNotRepeated()
    {
        const QString path = m_pFixture->File("out.svg");
        ScriptedUser user;
        user.DrawLine(0, 0, 50, 20).Do([] { ClickButton("Sketcher.Export"); });
        user.Until([] { return IsOpen("ExportDialog"); }).Do([path] { ChooseFile(path); });

        QCOMPARE(user.Run(m_pFixture->Draw()), 0);

        QVERIFY(vesk::ReadBytes(path).contains("<svg"));
        const QList<QByteArray> records = LinesWith(Journal(), "Sketcher.ExportDrawing");
        QCOMPARE(records.size(), 1);
        QVERIFY(records.front().contains("\"format\""));
        QVERIFY(records.front().contains("\"digest\""));
        QVERIFY(!records.front().contains("out.svg"));
        QVERIFY(QFile::remove(path));
        VerifyReplay();
        QVERIFY(!QFile::exists(path));
    }

    void replayStopsAtAnExportOfAnotherDrawing()
    {
        const QString path = m_pFixture->File("out.svg");
        ScriptedUser user;
        user.DrawLine(0, 0, 50, 20).Do([] { ClickButton("Sketcher.Export"); });
        user.Until([] { return IsOpen("ExportDialog"); }).Do([path] { ChooseFile(path); });
        QCOMPARE(user.Run(m_pFixture->Draw()), 0);
        QByteArray record = LinesWith(Journal(), "Sketcher.ExportDrawing").front();
        const int place = record.indexOf("\"digest\":\"") + 10;
        QByteArray other = record;
        other[place] = other[place] == 'a' ? 'b' : 'a';

        QVERIFY(vesk::WriteBytes(Journal(), vesk::ReadBytes(Journal()).replace(record, other)));
        const Outcome outcome = RunSketcher({"--replay", Journal()});

        QCOMPARE(outcome.code, 3);
    }

    void importIsOneStepThatAReplayRepeatsWithoutTheFile()
    {
        const QString path = m_pFixture->File("in.dxf");
        QVERIFY(vesk::WriteBytes(path, s_dxf));
        ScriptedUser user;
        user.Do([] { ClickButton("Sketcher.Import"); });
        user.Until([] { return IsOpen("ImportDialog"); }).Do([path] { ChooseFile(path); });
        user.Until([] { return IsOpen("DxfUnitDialog"); }).Do([] {
            Opened<QInputDialog>()->setTextValue(QStringLiteral("厘米"));
            Opened<QInputDialog>()->accept();
        });
        user.Until([] {
            return ScriptedUser::FindWindow()->findChild<QMessageBox*>("ImportReport") != nullptr;
        });

        QCOMPARE(user.Run(m_pFixture->Draw()), 0);

        const QVector<DrawnLine> lines = Model();
        QCOMPARE(lines.size(), 2);
        QVERIFY((lines[0].start == std::array<double, 3>{10.0, 20.0, 0.0}));
        QVERIFY(QFile::remove(path));
        VerifyReplay();
        QCOMPARE(LinesWith(Journal(), "Sketcher.ImportContent").size(), 1);
    }

    void undoTakesBackAWholeImport()
    {
        const QString path = m_pFixture->File("in.dxf");
        QVERIFY(vesk::WriteBytes(path, s_dxf));
        ScriptedUser user;
        user.Do([] { ClickButton("Sketcher.Import"); });
        user.Until([] { return IsOpen("ImportDialog"); }).Do([path] { ChooseFile(path); });
        user.Until([] { return IsOpen("DxfUnitDialog"); }).Do([] {
            Opened<QInputDialog>()->accept();
        });
        user.Until([] {
            return ScriptedUser::FindWindow()->findChild<QMessageBox*>("ImportReport") != nullptr;
        });
        user.Click("Sketcher.Undo");

        QCOMPARE(user.Run(m_pFixture->Draw()), 0);

        QCOMPARE(Model().size(), 0);
        VerifyReplay();
    }

    void printToAFileIsRecorded()
    {
        const QString path = m_pFixture->File("out.pdf");
        ScriptedUser user;
        user.DrawLine(0, 0, 50, 20).Do([] { ClickButton("Sketcher.Print"); });
        user.Until([] { return IsOpen("PrintDialog"); }).Do([] {
            auto* pPrinter = Opened<QDialog>()->findChild<QComboBox*>("PrintPrinter");
            pPrinter->setCurrentIndex(pPrinter->count() - 1);
            Opened<QDialog>()->accept();
        });
        user.Until([] { return IsOpen("PrintFileDialog"); }).Do([path] { ChooseFile(path); });

        QCOMPARE(user.Run(m_pFixture->Draw()), 0);

        QVERIFY(vesk::ReadBytes(path).startsWith("%PDF"));
        QCOMPARE(LinesWith(Journal(), "Sketcher.PrintDrawing").size(), 1);
        QVERIFY(QFile::remove(path));
        VerifyReplay();
        QVERIFY(!QFile::exists(path));
    }

    void dialogsEndWithTheProgram_data()
    {
        QTest::addColumn<QString>("command");
        QTest::newRow("export") << "Sketcher.Export";
        QTest::newRow("print") << "Sketcher.Print";
        QTest::newRow("import") << "Sketcher.Import";
    }

    void dialogsEndWithTheProgram()
    {
        QFETCH(QString, command);
        ScriptedUser user;
        user.DrawLine(0, 0, 50, 20).Do([command] { ClickButton(command); });
        user.Until([] { return QApplication::activeModalWidget() != nullptr; }).Do([] {
            ScriptedUser::FindWindow()->close();
            QCoreApplication::quit();
        });

        QCOMPARE(user.Run(m_pFixture->Draw()), 0);

        QCOMPARE(Model().size(), 1);
        VerifyReplay();
    }

    void fileIsExportedWithoutADisplay_data()
    {
        QTest::addColumn<QString>("suffix");
        QTest::addColumn<QByteArray>("start");
        QTest::newRow("svg") << "svg" << QByteArray("<?xml");
        QTest::newRow("pdf") << "pdf" << QByteArray("%PDF");
        QTest::newRow("png") << "png" << QByteArray("\x89PNG");
        QTest::newRow("dxf") << "dxf" << QByteArray("999\n");
    }

    void fileIsExportedWithoutADisplay()
    {
        QFETCH(QString, suffix);
        QFETCH(QByteArray, start);
        ScriptedUser user;
        user.DrawLine(0, 0, 50, 20);
        QCOMPARE(user.Run(m_pFixture->Draw()), 0);
        const QString path = m_pFixture->File("out." + suffix);

        const Outcome outcome = RunSketcher({"--open", Journal(), "--export", path},
                                            {"QT_QPA_PLATFORM=", "DISPLAY=", "WAYLAND_DISPLAY="});

        QCOMPARE(outcome.error, QString());
        QCOMPARE(outcome.code, 0);
        QVERIFY(vesk::ReadBytes(path).startsWith(start));
    }

    void dxfFileIsReadInTheUnitThatIsNamed()
    {
        const QString in = m_pFixture->File("in.dxf");
        const QString out = m_pFixture->File("out.svg");
        QVERIFY(vesk::WriteBytes(in, s_dxf));

        const Outcome unnamed = RunSketcher({in, "--export", out});
        const Outcome named = RunSketcher({in, "--dxf-unit", "m", "--export", out});

        QCOMPARE(unnamed.code, 2);
        QVERIFY2(unnamed.error.contains("--dxf-unit"), qPrintable(unnamed.error));
        QCOMPARE(named.error, QString());
        QCOMPARE(named.code, 0);
        // From (1, 2) to (7, 8) metres, and the margin.
        QVERIFY(vesk::ReadBytes(out).contains("width=\"6010mm\" height=\"6010mm\""));
    }

    void emptyDrawingIsNotExported()
    {
        ScriptedUser user;
        QCOMPARE(user.Run(m_pFixture->Draw()), 0);
        const QString path = m_pFixture->File("out.svg");

        const Outcome outcome = RunSketcher({"--replay", Journal(), "--export", path});

        QCOMPARE(outcome.code, 2);
        QVERIFY2(outcome.error.contains("no visible entities"), qPrintable(outcome.error));
        QVERIFY(!QFile::exists(path));
    }

private:
    std::unique_ptr<ScopedVariable> m_pPath;
};

VESK_TESTS(OutputTest);
#include "OutputTest.moc"
