#include "Dock/IPropertyWidget.h"

#include "Support/TestValues.h"

namespace vesk
{

class PropertyWidgetTest : public QObject
{
    Q_OBJECT

private slots:
    void itsTypeHasAName();
};

void PropertyWidgetTest::itsTypeHasAName()
{
    QCOMPARE(IPropertyWidget::GetTypeName(), std::wstring(L"PropertyWidget"));
}

}

VESK_TESTS_WITHOUT_APPLICATION(vesk::PropertyWidgetTest);
#include "PropertyWidgetTest.moc"
