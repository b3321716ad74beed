#include "OpeningFit.h"

#include "View/SketchViewFixture.h"

#include <QPointer>

using vesk::test::SketchViewFixture;

namespace
{

/// A view of a drawing that was opened while the window was small.
struct OpeningFitFixture : SketchViewFixture
{
    OpeningFitFixture()
    {
        workspace.sketch.AddLine({1000, 0, 0}, {3000, 0, 0});
        view.ZoomAll();
        pFit = new OpeningFit(view);
    }

    double ShownWidth() const { return view.GetCamera().GetWorldPerPixel() * view.width(); }

    QPointer<OpeningFit> pFit;
};

}

/// The drawing in the view at start.
class OpeningFitTest final : public QObject
{
    Q_OBJECT

private slots:
    void theDrawingFitsWhenTheWindowHasFoundItsSize()
    {
        OpeningFitFixture f;

        f.view.resize(f.view.width() / 2, f.view.height());

        QTRY_VERIFY(f.ShownWidth() >= 2000.0);
    }

    void afterTheFirstKeyOrClickTheViewIsTheUsers_data()
    {
        QTest::addColumn<bool>("isKey");

        QTest::newRow("key") << true;
        QTest::newRow("click") << false;
    }

    void afterTheFirstKeyOrClickTheViewIsTheUsers()
    {
        QFETCH(bool, isKey);
        OpeningFitFixture f;
        const double scale = f.view.GetCamera().GetWorldPerPixel();

        if (isKey)
            QTest::keyClick(&f.view, Qt::Key_Shift);
        else
            QTest::mouseClick(&f.view, Qt::LeftButton);
        f.view.resize(f.view.width() / 2, f.view.height());

        QTRY_VERIFY(f.pFit == nullptr);
        QCOMPARE(f.view.GetCamera().GetWorldPerPixel(), scale);
    }
};

VESK_TESTS(OpeningFitTest);
#include "OpeningFitTest.moc"
