#include "HostUi/DimensionInputController.h"
#include "HostUi/DrawingView.h"
#include "HostUi/MainWindow.h"
#include "HostUi/UiApplication.h"

#include "HostCore.h"
#include "Qtitan/RibbonBar.h"
#include "Support/TestValues.h"

#include <QApplication>
#include <QDockWidget>
#include <QLineEdit>
#include <QVBoxLayout>

namespace vesk
{

namespace
{

class EmptyView final : public DrawingView
{
public:
    using DrawingView::DrawingView;

protected:
    std::size_t PaintModel(QPainter&, const QRectF&, std::size_t begin) override { return begin; }
};

/// A window with a ribbon, a view, and a pane with two fields on either side.
struct AreasFixture
{
    AreasFixture()
    {
        window.SetDrawingView(pView);
        window.GetRibbon()->addPage("page");
        pRight = AddPane(Qt::RightDockWidgetArea, "right");
        pLeft = AddPane(Qt::LeftDockWidgetArea, "left");
        window.resize(800, 600);
        window.show();
        window.activateWindow();
        if (!QTest::qWaitForWindowActive(&window, test::PatienceMs))
            qFatal("the window is not active");
        pView->setFocus();
    }

    QDockWidget* AddPane(Qt::DockWidgetArea area, const QString& name)
    {
        auto* pPane = new QDockWidget(name, &window);
        auto* pContent = new QWidget;
        auto* pLayout = new QVBoxLayout(pContent);
        for (const char* field : {"1", "2"})
        {
            auto* pField = new QLineEdit;
            pField->setObjectName(name + field);
            pLayout->addWidget(pField);
        }
        pPane->setWidget(pContent);
        window.addDockWidget(area, pPane);
        return pPane;
    }

    void Press(Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_F6, modifiers);
    }

    static QString Focus()
    {
        const QWidget* pFocus = QApplication::focusWidget();
        return pFocus != nullptr ? pFocus->objectName() : QString();
    }

    HostCore core;
    UiApplication application;
    DimensionInputController input;
    MainWindow window;
    EmptyView* pView = new EmptyView(1, input, &window);
    QDockWidget* pRight;
    QDockWidget* pLeft;
};

}

/// F6 goes from area to area.
class FocusAreasTest final : public QObject
{
    Q_OBJECT

private slots:
    void keyGoesFromAreaToArea()
    {
        AreasFixture f;

        f.Press();
        QCOMPARE(AreasFixture::Focus(), QString("left1"));
        f.Press();
        QCOMPARE(AreasFixture::Focus(), QString("right1"));
        f.Press();
        QVERIFY(f.window.GetRibbon()->isAncestorOf(QApplication::focusWidget()));
        f.Press();

        QVERIFY(f.pView->hasFocus());
    }

    void withShiftItGoesBack()
    {
        AreasFixture f;

        f.Press(Qt::ShiftModifier);
        QVERIFY(f.window.GetRibbon()->isAncestorOf(QApplication::focusWidget()));
        f.Press(Qt::ShiftModifier);

        QCOMPARE(AreasFixture::Focus(), QString("right1"));
    }

    void areaGetsTheKeyboardWhereItHadItLast()
    {
        AreasFixture f;
        f.window.findChild<QLineEdit*>("left2")->setFocus();
        f.pView->setFocus();

        f.Press();

        QCOMPARE(AreasFixture::Focus(), QString("left2"));
    }

    void hiddenPanesAreLeftOut()
    {
        AreasFixture f;
        f.pLeft->hide();

        f.Press();

        QCOMPARE(AreasFixture::Focus(), QString("right1"));
    }

    void paneWithNothingToTypeInIsLeftOut()
    {
        AreasFixture f;
        f.pLeft->widget()->setEnabled(false);

        f.Press();

        QCOMPARE(AreasFixture::Focus(), QString("right1"));
    }
};

}

VESK_TESTS(vesk::FocusAreasTest);
#include "FocusAreasTest.moc"
