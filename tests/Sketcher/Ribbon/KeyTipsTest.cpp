#include "Ribbon/KeyTips.h"

#include "Support/TestValues.h"

#include <QSet>
#include <QString>

using Tips = std::vector<std::pair<const char*, const char*>>;

Q_DECLARE_METATYPE(Tips)

/// The keys of the ribbon's controls.
class KeyTipsTest final : public QObject
{
    Q_OBJECT

private slots:
    void keysOfAPageAreUnique_data()
    {
        QTest::addColumn<Tips>("tips");

        QTest::newRow("drawing") << KeyTipsOfDrawingPage();
        QTest::newRow("start") << KeyTipsOfStartPage();
    }

    void keysOfAPageAreUnique()
    {
        QFETCH(Tips, tips);
        QSet<QString> ids;
        QSet<QString> keys;

        for (const auto& [id, key] : tips)
        {
            QVERIFY2(!ids.contains(id), id);
            QVERIFY2(!keys.contains(key), key);
            // 0 begins the keys of controls that have none of their own.
            QVERIFY2(QString("123456789ABCDEFGHIJKLMNOPQRSTUVWXYZ").contains(key), key);
            QCOMPARE(QString(key).size(), 1);
            ids << id;
            keys << key;
        }
    }

    void keysNeverChange_data()
    {
        QTest::addColumn<Tips>("tips");
        QTest::addColumn<QString>("keys");

        QTest::newRow("drawing") << KeyTipsOfDrawingPage() << "LRC34ZYETMKIOJAQHFPSGWB5678912UNX";
        QTest::newRow("start") << KeyTipsOfStartPage() << "NORSAWIEPXCVDLKTHB";
    }

    void keysNeverChange()
    {
        QFETCH(Tips, tips);
        QFETCH(QString, keys);
        QString all;

        for (const auto& tip : tips)
            all += tip.second;

        QVERIFY2(all.startsWith(keys), qPrintable(all));
    }
};

VESK_TESTS_WITHOUT_WINDOWS(KeyTipsTest);
#include "KeyTipsTest.moc"
