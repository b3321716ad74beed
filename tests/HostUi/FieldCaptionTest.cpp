#include "HostUi/FieldCaption.h"

#include "Support/TestValues.h"

using namespace vesk;

Q_DECLARE_METATYPE(InputState)

/// What people call the fields of dimensions.
class FieldCaptionTest final : public QObject
{
    Q_OBJECT

private slots:
    void fieldIsCalledByItsName_data()
    {
        QTest::addColumn<InputState>("field");
        QTest::addColumn<QString>("caption");

        QTest::newRow("none") << InputState::IS_None << QString();
        QTest::newRow("length") << InputState::IS_Length << "长度";
        QTest::newRow("angle") << InputState::IS_Angle << "角度";
        QTest::newRow("radius") << InputState::IS_Radius << "半径";
        QTest::newRow("central angle") << InputState::IS_CentralAngle << "圆心角";
        QTest::newRow("width") << InputState::IS_Width << "宽度";
        QTest::newRow("height") << InputState::IS_Height << "高度";
    }

    void fieldIsCalledByItsName()
    {
        QFETCH(InputState, field);

        QTEST(FieldCaption(field), "caption");
    }
};

VESK_TESTS_WITHOUT_WINDOWS(FieldCaptionTest);
#include "FieldCaptionTest.moc"
