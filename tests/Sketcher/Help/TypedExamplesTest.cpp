#include "Help/TypedExamples.h"

#include "Dimension/LengthUnit.h"
#include "Support/TestValues.h"

using namespace vesk;

/// The help says of each text what really happens to it.
class TypedExamplesTest final : public QObject
{
    Q_OBJECT

private slots:
    void eachExampleIsTreatedAsTheHelpSays_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("quantity");
        QTest::addColumn<bool>("isAccepted");

        for (const TypedExample& example : AcceptedExamples())
            QTest::newRow(qPrintable(example.text))
                << example.text << int(example.quantity) << true;
        for (const TypedExample& example : RejectedExamples())
            QTest::newRow(qPrintable("not " + example.text))
                << example.text << int(example.quantity) << false;
    }

    void eachExampleIsTreatedAsTheHelpSays()
    {
        QFETCH(QString, text);
        QFETCH(int, quantity);
        QFETCH(bool, isAccepted);

        const TypedReading reading =
            ReadTypedText(text, static_cast<Quantity>(quantity), LengthUnit::Millimetre());

        QCOMPARE(reading.fault == TypedTextFault::None, isAccepted);
    }
};

VESK_TESTS(TypedExamplesTest);
#include "TypedExamplesTest.moc"
