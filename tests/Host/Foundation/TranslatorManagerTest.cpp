#include "Foundation/TranslatorManager.h"

#include "Support/TestValues.h"

namespace vesk
{

namespace
{

/// Translates one text of one module.
class OneText final : public ITranslator
{
public:
    std::wstring Translate(const std::wstring& context, const std::wstring& text) const override
    {
        return context == L"Module" && text == L"信息" ? L"Information" : L"";
    }
};

}

class TranslatorManagerTest : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { TranslatorManager::Get()->SetTranslator(nullptr); }

    void thereIsOneManager();
    void textsAreTheirOwnTranslationAtFirst();
    void textsAreTranslatedByTheChosenTranslator_data();
    void textsAreTranslatedByTheChosenTranslator();
    void aTranslatorCanBeTakenAway();
};

void TranslatorManagerTest::thereIsOneManager()
{
    QVERIFY(TranslatorManager::Get() != nullptr);
    QCOMPARE(TranslatorManager::Get(), TranslatorManager::Get());
}

void TranslatorManagerTest::textsAreTheirOwnTranslationAtFirst()
{
    QCOMPARE(TranslatorManager::Get()->Translate(L"Module", L"信息"), std::wstring(L"信息"));
}

void TranslatorManagerTest::textsAreTranslatedByTheChosenTranslator_data()
{
    QTest::addColumn<QString>("context");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("translation");
    QTest::newRow("known") << "Module"
                           << "信息"
                           << "Information";
    QTest::newRow("unknown text") << "Module"
                                  << "调试"
                                  << "调试";
    QTest::newRow("another module") << "Other"
                                    << "信息"
                                    << "信息";
    QTest::newRow("empty") << "Module"
                           << ""
                           << "";
}

void TranslatorManagerTest::textsAreTranslatedByTheChosenTranslator()
{
    QFETCH(QString, context);
    QFETCH(QString, text);
    const OneText translator;
    TranslatorManager::Get()->SetTranslator(&translator);

    const std::wstring translation =
        TranslatorManager::Get()->Translate(context.toStdWString(), text.toStdWString());

    QTEST(QString::fromStdWString(translation), "translation");
}

void TranslatorManagerTest::aTranslatorCanBeTakenAway()
{
    const OneText translator;
    TranslatorManager::Get()->SetTranslator(&translator);

    TranslatorManager::Get()->SetTranslator(nullptr);

    QCOMPARE(TranslatorManager::Get()->Translate(L"Module", L"信息"), std::wstring(L"信息"));
}

}

VESK_TESTS_WITHOUT_APPLICATION(vesk::TranslatorManagerTest);
#include "TranslatorManagerTest.moc"
