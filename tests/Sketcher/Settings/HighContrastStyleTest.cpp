#include "Settings/HighContrastStyle.h"

#include "Settings/Appearance.h"

#include "HostUi/Contrast.h"
#include "Support/TestValues.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDockWidget>
#include <QImage>
#include <QLineEdit>
#include <QMainWindow>
#include <QPushButton>
#include <QScrollBar>
#include <QSpinBox>

#include <memory>

namespace
{

/// How many pixels stand out against black.
int CountInk(const QImage& picture)
{
    int count = 0;
    for (int y = 0; y < picture.height(); ++y)
    {
        for (int x = 0; x < picture.width(); ++x)
            count += vesk::ContrastOf(picture.pixelColor(x, y), Qt::black) >= 7.0 ? 1 : 0;
    }
    return count;
}

std::unique_ptr<QWidget> Make(const QString& kind)
{
    if (kind == "button")
        return std::make_unique<QPushButton>();
    if (kind == "check box")
        return std::make_unique<QCheckBox>();
    if (kind == "line edit")
        return std::make_unique<QLineEdit>();
    if (kind == "combo box")
        return std::make_unique<QComboBox>();
    if (kind == "scroll bar")
        return std::make_unique<QScrollBar>(Qt::Horizontal);
    return std::make_unique<QSpinBox>();
}

}

Q_DECLARE_METATYPE(QStyle::StandardPixmap)

/// What must be seen where everything has the same background.
class HighContrastStyleTest final : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_pAppearance = std::make_unique<Appearance>();
        m_pAppearance->Set(Settings::Colours::HighContrast);
    }

    void cleanup() { m_pAppearance.reset(); }

    void paletteIsOfHighContrast()
    {
        QVERIFY(vesk::IsHighContrast(QApplication::palette()));
        QCOMPARE(QApplication::style()->objectName(), QString(HighContrastStyle::Name));
    }

    /// The text of what is disabled, too.
    void textsStandOut_data()
    {
        QTest::addColumn<int>("group");
        QTest::addColumn<int>("ink");
        QTest::addColumn<int>("paper");

        for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled})
        {
            const auto add = [group](const char* name, QPalette::ColorRole ink,
                                     QPalette::ColorRole paper) {
                QTest::addRow("%s, %d", name, group) << int(group) << int(ink) << int(paper);
            };
            add("text", QPalette::Text, QPalette::Base);
            add("other row", QPalette::Text, QPalette::AlternateBase);
            add("label", QPalette::WindowText, QPalette::Window);
            add("button", QPalette::ButtonText, QPalette::Button);
            add("selected", QPalette::HighlightedText, QPalette::Highlight);
            add("tip", QPalette::ToolTipText, QPalette::ToolTipBase);
            add("link", QPalette::Link, QPalette::Base);
            add("hint in a field", QPalette::PlaceholderText, QPalette::Base);
        }
    }

    void textsStandOut()
    {
        QFETCH(int, group);
        QFETCH(int, ink);
        QFETCH(int, paper);
        const QPalette palette = QApplication::palette();
        const auto colour = [&palette, group](int role) {
            return palette.color(QPalette::ColorGroup(group), QPalette::ColorRole(role));
        };

        QVERIFY(vesk::ContrastOf(colour(ink), colour(paper)) >= 7.0);
    }

    void emptyControlIsSeen_data()
    {
        QTest::addColumn<QString>("kind");

        for (const char* kind :
             {"button", "check box", "line edit", "combo box", "scroll bar", "spin box"})
            QTest::newRow(kind) << kind;
    }

    void emptyControlIsSeen()
    {
        QFETCH(QString, kind);
        const std::unique_ptr<QWidget> pWidget = Make(kind);

        const QImage picture = pWidget->grab().toImage();

        QVERIFY(CountInk(picture) >= 20);
    }

    void buttonsInTheTitleOfAPaneAreSeen_data()
    {
        QTest::addColumn<QStyle::StandardPixmap>("standard");

        QTest::newRow("float") << QStyle::SP_TitleBarNormalButton;
        QTest::newRow("close") << QStyle::SP_TitleBarCloseButton;
    }

    void buttonsInTheTitleOfAPaneAreSeen()
    {
        QFETCH(QStyle::StandardPixmap, standard);

        const QIcon icon = QApplication::style()->standardIcon(standard);

        QVERIFY(CountInk(icon.pixmap(10, 10).toImage()) >= 8);
    }

    void lineStandsBetweenPanes()
    {
        QMainWindow window;
        window.setCentralWidget(new QWidget);
        auto* pPane = new QDockWidget;
        pPane->setWidget(new QWidget);
        window.addDockWidget(Qt::LeftDockWidgetArea, pPane);
        window.resize(400, 300);
        window.show();
        QCoreApplication::processEvents();

        const QImage picture = window.grab().toImage();

        const int right = pPane->geometry().right() + 1;
        const QRect between(right, 50, window.centralWidget()->x() - right, 100);
        QCOMPARE(CountInk(picture.copy(between)), 100);
    }

    void disabledTextIsDrawnOnce()
    {
        QCOMPARE(QApplication::style()->styleHint(QStyle::SH_EtchDisabledText), 0);
    }

private:
    std::unique_ptr<Appearance> m_pAppearance;
};

VESK_TESTS(HighContrastStyleTest);
#include "HighContrastStyleTest.moc"
