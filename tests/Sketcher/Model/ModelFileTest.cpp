#include "Model/ModelFile.h"

#include "Model/Sketch.h"
#include "Support/FileBytes.h"
#include "Support/TestValues.h"

#include <QTemporaryDir>

using vesk::Vector3d;

class ModelFileTest final : public QObject
{
    Q_OBJECT

private slots:
    void everyKindIsWrittenWithItsNumbers()
    {
        Sketch sketch;
        const Vector3d up(0, 0, 1);
        sketch.AddLine({0.1, 0, 0}, {3, 4, 0});
        sketch.SetCurrentPen(&Pen::style, 1);
        sketch.Add(CircleShape{{1, 2, 0}, 1.0 / 3.0, up});
        sketch.SetCurrentPen(&Pen::colour, 1);
        sketch.Add(ArcShape{{0, 0, 0}, 5, {5, 0, 0}, {0, 5, 0}, up});
        sketch.Add(RectangleShape{
            {Vector3d(0, 0, 0), Vector3d(8, 0, 0), Vector3d(8, 6, 0), Vector3d(0, 6, 0)}});

        QCOMPARE(
            Write(sketch),
            QByteArray(
                R"({"entities":[)"
                R"({"type":"line","start":[0.1,0.0,0.0],"end":[3.0,4.0,0.0],)"
                R"("style":"solid","colour":"default","width":"0.25","layer":0},)"
                R"({"type":"circle","centre":[1.0,2.0,0.0],"radius":0.3333333333333333,)"
                R"("normal":[0.0,0.0,1.0],"style":"dashed","colour":"default","width":"0.25","layer":0},)"
                R"({"type":"arc","centre":[0.0,0.0,0.0],"radius":5.0,"start":[5.0,0.0,0.0],)"
                R"("end":[0.0,5.0,0.0],"normal":[0.0,0.0,1.0],"style":"dashed","colour":"red","width":"0.25","layer":0},)"
                R"({"type":"rectangle","corners":[[0.0,0.0,0.0],[8.0,0.0,0.0],[8.0,6.0,0.0],)"
                R"([0.0,6.0,0.0]],"style":"dashed","colour":"red","width":"0.25","layer":0}],)"
                R"("layers":[{"id":0,"name":"0","colour":"default","visible":true,"locked":false}]})"
                "\n"));
    }

    void aFileThatCannotBeWrittenIsTold()
    {
        QVERIFY(!WriteModelFile(Sketch(), QStringLiteral("/nonexistent/model")));
    }

private:
    static QByteArray Write(const Sketch& sketch)
    {
        const QTemporaryDir folder;
        const QString path = folder.filePath("model");
        if (!WriteModelFile(sketch, path))
            return {};
        return vesk::ReadBytes(path);
    }
};

VESK_TESTS_WITHOUT_WINDOWS(ModelFileTest);
#include "ModelFileTest.moc"
