#include "HostUi/LineEditValidateHelper.h"

#include "Support/TestValues.h"
#include "Validation/NumberValidator.h"

#include <QLineEdit>

#include <memory>

using namespace vesk;

class LineEditValidateHelperTest final : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_pEdit = std::make_unique<QLineEdit>(QStringLiteral("5"));
        m_pEdit->setToolTip(QStringLiteral("tip"));
        m_pEdit->show();
    }

    void cleanup() { m_pEdit.reset(); }

    void refusedTextIsMarkedAndExplained()
    {
        LineEditValidateHelper helper(nullptr);
        helper.SetValidators({{m_pEdit.get(), &m_validator}});
        QVERIFY(!IsMarked());

        m_pEdit->setText("50");

        QVERIFY(IsMarked());
        QCOMPARE(m_pEdit->toolTip(), QString::fromStdWString(m_validator.GetTip()));
    }

    void acceptedTextLooksAsBefore()
    {
        LineEditValidateHelper helper(nullptr);
        m_pEdit->setText("50");
        helper.SetValidators({{m_pEdit.get(), &m_validator}});
        QVERIFY(IsMarked());

        m_pEdit->setText("7");

        QVERIFY(!IsMarked());
        QCOMPARE(m_pEdit->toolTip(), QStringLiteral("tip"));
    }

    void noCharacterIsRefused()
    {
        LineEditValidateHelper helper(nullptr);
        helper.SetValidators({{m_pEdit.get(), &m_validator}});
        m_pEdit->clear();

        QTest::keyClicks(m_pEdit.get(), "20+2,x y");

        QCOMPARE(m_pEdit->text(), QStringLiteral("20+2,x y"));
        QVERIFY(m_pEdit->validator() == nullptr);
    }

    void emptyValidatorLeavesTheEditAlone()
    {
        LineEditValidateHelper helper(nullptr);
        m_pEdit->setText("50");
        helper.SetValidators({{m_pEdit.get(), &m_validator}});

        helper.SetValidators({{m_pEdit.get(), nullptr}});

        QVERIFY(!IsMarked());
        QCOMPARE(m_pEdit->toolTip(), QStringLiteral("tip"));
    }

    void destroyedHelperLeavesTheEditAsItWas()
    {
        auto pHelper = std::make_unique<LineEditValidateHelper>(nullptr);
        m_pEdit->setText("50");
        pHelper->SetValidators({{m_pEdit.get(), &m_validator}});

        pHelper.reset();

        QVERIFY(!IsMarked());
        QCOMPARE(m_pEdit->toolTip(), QStringLiteral("tip"));
    }

    void markIsARedLineAtTheBottom()
    {
        LineEditValidateHelper helper(nullptr);
        m_pEdit->setText("50");
        m_pEdit->resize(200, 30);
        helper.SetValidators({{m_pEdit.get(), &m_validator}});
        const QWidget* pMark = FindMark();
        QCOMPARE(pMark->geometry(), QRect(3, 25, 194, 2));
        QVERIFY(pMark->testAttribute(Qt::WA_TransparentForMouseEvents));
        QCOMPARE(m_pEdit->grab().toImage().pixelColor(100, 26), QColor("#d64541"));

        m_pEdit->resize(120, 40);

        QCOMPARE(pMark->geometry(), QRect(3, 35, 114, 2));
    }

    void markStandsOverWhatComesLater()
    {
        LineEditValidateHelper helper(nullptr);
        helper.SetValidators({{m_pEdit.get(), &m_validator}});
        auto* pLater = new QWidget(m_pEdit.get());
        pLater->resize(500, 500);
        pLater->setStyleSheet("background: green");
        pLater->show();

        m_pEdit->setText("50");

        QCOMPARE(m_pEdit->children().last(), static_cast<const QObject*>(FindMark()));
    }

    void editMayDieFirst()
    {
        LineEditValidateHelper helper(nullptr);
        m_pEdit->setText("50");
        helper.SetValidators({{m_pEdit.get(), &m_validator}});

        m_pEdit.reset();

        helper.SetValidators({});
    }

private:
    /// The visible child widget of the edit; null if there is none.
    const QWidget* FindMark() const
    {
        for (const QWidget* pChild : m_pEdit->findChildren<QWidget*>())
        {
            if (pChild->isVisible() && pChild->height() == 2)
                return pChild;
        }
        return nullptr;
    }

    bool IsMarked() const
    {
        for (const QWidget* pChild : m_pEdit->findChildren<QWidget*>())
        {
            if (pChild->isVisible())
                return true;
        }
        return false;
    }

    const NumberValidator<double> m_validator{0.0, 10.0, L"", true, true, 3};
    std::unique_ptr<QLineEdit> m_pEdit;
};

VESK_TESTS(LineEditValidateHelperTest);
#include "LineEditValidateHelperTest.moc"
