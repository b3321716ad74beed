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

QTEST_APPLESS_MAIN(vesk::PropertyWidgetTest)
#include "PropertyWidgetTest.moc"
