#include "Foundation/NqStyleSheetHelper.h"

#include "Support/TestValues.h"

namespace vesk
{

class NqStyleSheetHelperTest : public QObject
{
    Q_OBJECT

private slots:
    void thereIsOneHelper();
    void theStyleSheetIsEmptyAtFirst();
    void theStyleSheetIsTheOneChosenLast();
};

void NqStyleSheetHelperTest::thereIsOneHelper()
{
    QVERIFY(NqStyleSheetHelper::Instance() != nullptr);
    QCOMPARE(NqStyleSheetHelper::Instance(), NqStyleSheetHelper::Instance());
}

void NqStyleSheetHelperTest::theStyleSheetIsEmptyAtFirst()
{
    QCOMPARE(NqStyleSheetHelper::Instance()->GetCurrentStyleData(), std::wstring());
}

void NqStyleSheetHelperTest::theStyleSheetIsTheOneChosenLast()
{
    NqStyleSheetHelper::Instance()->SetCurrentStyleData(L"QWidget { color: red; }");

    NqStyleSheetHelper::Instance()->SetCurrentStyleData(L"QWidget { font-family: 宋体; }");

    QCOMPARE(NqStyleSheetHelper::Instance()->GetCurrentStyleData(),
             std::wstring(L"QWidget { font-family: 宋体; }"));
}

}

VESK_TESTS_WITHOUT_APPLICATION(vesk::NqStyleSheetHelperTest);
#include "NqStyleSheetHelperTest.moc"
