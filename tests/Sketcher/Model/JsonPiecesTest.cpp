#include "Model/JsonPieces.h"

#include "Support/TestValues.h"

class JsonPiecesTest final : public QObject
{
    Q_OBJECT

private slots:
    void nothingIsReadBehindTheEnd_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::newRow("a bracket") << QByteArray("[[");
        QTest::newRow("a blank in a bracket") << QByteArray("[[ ");
        QTest::newRow("a text") << QByteArray("[[\"a");
        QTest::newRow("a backslash in a text") << QByteArray("[[\"\\");
    }

    void nothingIsReadBehindTheEnd()
    {
        QFETCH(QByteArray, text);
        const QByteArray more = text + "]]";
        const std::string_view piece(more.constData(), static_cast<std::size_t>(text.size()));

        std::size_t offset = 0;
        try
        {
            SplitArray({piece, 0});
        }
        catch (const JsonFault& fault)
        {
            offset = fault.GetOffset();
        }

        QCOMPARE(offset, piece.size());
    }
};

VESK_TESTS_WITHOUT_WINDOWS(JsonPiecesTest);
#include "JsonPiecesTest.moc"
