#include "DebugWarnFixture.h"

#include "Support/TestValues.h"

#include <QMetaMethod>
#include <QScrollBar>

#include <limits>

namespace vesk::test
{

/// What the dialog shows and returns.
class DebugWarnDialogTest : public QObject
{
    Q_OBJECT

private slots:
    void slotsStandInOrder();
    void fieldsAreShownInHouse_data();
    void fieldsAreShownInHouse();
    void theRecordDecidesWhetherItIsPublished_data();
    void theRecordDecidesWhetherItIsPublished();
    void lineNumbersAreDecimal_data();
    void lineNumbersAreDecimal();
    void textsAreNeverMarkup();
    void everyButtonEndsTheDialogWithItsAnswer_data();
    void everyButtonEndsTheDialogWithItsAnswer();
    void theReportButtonCannotBeClicked();
    void leavingIsToIgnoreOnce_data();
    void leavingIsToIgnoreOnce();
    void returnClicksTheFirstButton_data();
    void returnClicksTheFirstButton();
    void returnAnswersWhereverTheFocusIs_data();
    void returnAnswersWhereverTheFocusIs();
    void theFocusOfAButtonIsWhatReturnClicks_data();
    void theFocusOfAButtonIsWhatReturnClicks();
    void theDefaultButtonIsMarked();
    void theFocusIsSeenInATextBox_data();
    void theFocusIsSeenInATextBox();
    void textBoxesAreReadWithTheKeyboard();
    void longTextsBeginAtTheirBeginning_data();
    void longTextsBeginAtTheirBeginning();
    void userNameAndPasswordAreCopied_data();
    void userNameAndPasswordAreCopied();
};

void DebugWarnDialogTest::slotsStandInOrder()
{
    const QMetaObject& meta = DebugWarnDialog::staticMetaObject;
    QByteArrayList found;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i)
        found << (meta.method(i).methodType() == QMetaMethod::Slot
                      ? meta.method(i).methodSignature()
                      : QByteArray("no slot"));

    QCOMPARE(found, (QByteArrayList{"IgnoreButtonPushed()", "IgnoreAllButtonPushed()",
                                    "ReportBugButtonPushed()", "DebugButtonPushed()"}));
    QCOMPARE(meta.className(), "DebugWarnDialog");
}

void DebugWarnDialogTest::fieldsAreShownInHouse_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("empty") << "";
    QTest::newRow("Chinese") << QString::fromUtf8("不能删除属性面板");
    QTest::newRow("beyond the basic plane") << QString::fromUtf8("\xF0\x9F\x93\x90 angle");
}

void DebugWarnDialogTest::fieldsAreShownInHouse()
{
    QFETCH(QString, text);
    DialogFixture f;
    const std::string narrow = text.toStdString();
    const std::wstring wide = text.toStdWString();

    f.dialog.SetInfo(narrow + 'a', 1, narrow + 'b', wide + L'c', wide + L'd', wide + L'e');

    QCOMPARE(f.Box(File).toPlainText(), text + 'a');
    QCOMPARE(f.Box(Function).toPlainText(), text + 'b');
    QCOMPARE(f.Box(Message).toPlainText(), text + 'c');
    QCOMPARE(f.Line(Person).text(), text + 'd');
    QCOMPARE(f.Line(Date).text(), text + 'e');
}

void DebugWarnDialogTest::theRecordDecidesWhetherItIsPublished_data()
{
    QTest::addColumn<QVariant>("record");
    QTest::addColumn<bool>("isPublished");
    QTest::newRow("no record") << QVariant() << false;
    QTest::newRow("in house") << QVariant(true) << false;
    QTest::newRow("published") << QVariant(false) << true;
}

void DebugWarnDialogTest::theRecordDecidesWhetherItIsPublished()
{
    QFETCH(QVariant, record);
    QFETCH(bool, isPublished);
    DialogFixture f;
    if (record.isValid())
        IPublishConfig::SetConfigRecord(PublishConfigRecordNames::InHouseMode, record.toBool());
    QVERIFY(!f.Button(IgnoreButton).isHidden());

    f.dialog.SetInfo("file", 1, "function", L"message", L"person", L"date");

    QCOMPARE(f.Button(IgnoreButton).isHidden(), isPublished);
    QCOMPARE(f.Button(DebugButton).isHidden(), isPublished);
    QVERIFY(!f.Button(IgnoreAllButton).isHidden());
    QCOMPARE(f.Line(Person).text(), QString(isPublished ? "******" : "person"));
}

void DebugWarnDialogTest::lineNumbersAreDecimal_data()
{
    QTest::addColumn<int>("line");
    QTest::addColumn<QString>("text");
    QTest::newRow("zero") << 0 << "0";
    QTest::newRow("negative") << -17 << "-17";
    QTest::newRow("thousands") << 1234567 << "1234567";
    QTest::newRow("greatest") << std::numeric_limits<int>::max() << "2147483647";
    QTest::newRow("least") << std::numeric_limits<int>::min() << "-2147483648";
}

void DebugWarnDialogTest::lineNumbersAreDecimal()
{
    QFETCH(int, line);
    DialogFixture f;

    f.dialog.SetInfo("file", line, "function", L"message", L"person", L"date");

    QTEST(f.Line(LineNumber).text(), "text");
}

void DebugWarnDialogTest::textsAreNeverMarkup()
{
    DialogFixture f;

    f.dialog.SetInfo("<b>file</b>", 1, "F<b>::G", L"<b>a</b>\n&lt;", L"<i>p</i>", L"<i>d</i>");

    QCOMPARE(f.Box(File).toPlainText(), QString("<b>file</b>"));
    QCOMPARE(f.Box(Function).toPlainText(), QString("F<b>::G"));
    QCOMPARE(f.Box(Message).toPlainText(), QString("<b>a</b>\n&lt;"));
    QCOMPARE(f.Line(Person).text(), QString("<i>p</i>"));
    QCOMPARE(f.Line(Date).text(), QString("<i>d</i>"));
}

void DebugWarnDialogTest::everyButtonEndsTheDialogWithItsAnswer_data()
{
    QTest::addColumn<int>("button");
    QTest::addColumn<int>("answer");
    QTest::newRow("ignore once") << int(IgnoreButton) << 0;
    QTest::newRow("ignore all") << int(IgnoreAllButton) << 1;
    QTest::newRow("report") << int(ReportButton) << 2;
    QTest::newRow("debug") << int(DebugButton) << 3;
}

void DebugWarnDialogTest::everyButtonEndsTheDialogWithItsAnswer()
{
    QFETCH(int, button);
    DialogFixture f;
    QSignalSpy finished(&f.dialog, &QDialog::finished);
    f.Button(ReportButton).setEnabled(true);
    f.dialog.show();

    f.Button(button).click();

    QCOMPARE(finished.size(), 1);
    QTEST(finished[0][0].toInt(), "answer");
    QVERIFY(!f.dialog.isVisible());
}

void DebugWarnDialogTest::theReportButtonCannotBeClicked()
{
    DialogFixture f;
    f.dialog.show();

    f.Button(ReportButton).click();

    QVERIFY(f.dialog.isVisible());
}

void DebugWarnDialogTest::leavingIsToIgnoreOnce_data()
{
    QTest::addColumn<bool>("isEscape");
    QTest::addColumn<bool>("isPublished");
    QTest::newRow("Escape in house") << true << false;
    QTest::newRow("Escape when published") << true << true;
    QTest::newRow("closed in house") << false << false;
    QTest::newRow("closed when published") << false << true;
}

void DebugWarnDialogTest::leavingIsToIgnoreOnce()
{
    QFETCH(bool, isEscape);
    QFETCH(bool, isPublished);
    DialogFixture f(isPublished);
    QSignalSpy finished(&f.dialog, &QDialog::finished);
    f.dialog.show();
    QVERIFY(QTest::qWaitForWindowActive(&f.dialog, vesk::test::PatienceMs));

    if (isEscape)
        QTest::keyClick(f.dialog.windowHandle(), Qt::Key_Escape);
    else
        f.dialog.close();

    QCOMPARE(finished.size(), 1);
    QCOMPARE(finished[0][0].toInt(), 0);
}

void DebugWarnDialogTest::returnClicksTheFirstButton_data()
{
    QTest::addColumn<bool>("isPublished");
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("answer");
    QTest::newRow("Return in house") << false << int(Qt::Key_Return) << 0;
    QTest::newRow("Enter in house") << false << int(Qt::Key_Enter) << 0;
    QTest::newRow("Return when published") << true << int(Qt::Key_Return) << 1;
    QTest::newRow("Enter when published") << true << int(Qt::Key_Enter) << 1;
}

void DebugWarnDialogTest::returnClicksTheFirstButton()
{
    QFETCH(bool, isPublished);
    QFETCH(int, key);
    DialogFixture f(isPublished);
    QSignalSpy finished(&f.dialog, &QDialog::finished);
    f.dialog.show();
    QVERIFY(QTest::qWaitForWindowActive(&f.dialog, vesk::test::PatienceMs));

    QTest::keyClick(f.dialog.windowHandle(), static_cast<Qt::Key>(key));

    QTRY_COMPARE(finished.size(), 1);
    QTEST(finished[0][0].toInt(), "answer");
}

/// Every field reachable with the Tab key, in both forms.
static void AddFocusPlaces()
{
    QTest::addColumn<bool>("isPublished");
    QTest::addColumn<bool>("isBox");
    QTest::addColumn<int>("index");
    for (const bool isPublished : {false, true})
    {
        const QByteArray form = isPublished ? ", published" : ", in house";
        QTest::newRow("message" + form) << isPublished << true << int(Message);
        QTest::newRow("file" + form) << isPublished << true << int(File);
        QTest::newRow("function" + form) << isPublished << true << int(Function);
        QTest::newRow("line" + form) << isPublished << false << int(LineNumber);
        QTest::newRow("person" + form) << isPublished << false << int(Person);
        QTest::newRow("date" + form) << isPublished << false << int(Date);
    }
}

void DebugWarnDialogTest::returnAnswersWhereverTheFocusIs_data()
{
    AddFocusPlaces();
}

void DebugWarnDialogTest::returnAnswersWhereverTheFocusIs()
{
    QFETCH(bool, isPublished);
    QFETCH(bool, isBox);
    QFETCH(int, index);
    DialogFixture f(isPublished);
    QSignalSpy finished(&f.dialog, &QDialog::finished);
    f.dialog.show();
    QVERIFY(QTest::qWaitForWindowActive(&f.dialog, vesk::test::PatienceMs));
    QWidget& field = isBox ? static_cast<QWidget&>(f.Box(index)) : f.Line(index);

    field.setFocus(Qt::TabFocusReason);
    QVERIFY(field.hasFocus());
    QTest::keyClick(f.dialog.windowHandle(), Qt::Key_Return);

    QTRY_COMPARE(finished.size(), 1);
    QCOMPARE(finished[0][0].toInt(), isPublished ? 1 : 0);
}

void DebugWarnDialogTest::theFocusOfAButtonIsWhatReturnClicks_data()
{
    QTest::addColumn<int>("button");
    QTest::addColumn<int>("answer");
    QTest::newRow("ignore once") << int(IgnoreButton) << 0;
    QTest::newRow("ignore all") << int(IgnoreAllButton) << 1;
    QTest::newRow("debug") << int(DebugButton) << 3;
}

void DebugWarnDialogTest::theFocusOfAButtonIsWhatReturnClicks()
{
    QFETCH(int, button);
    DialogFixture f;
    QSignalSpy finished(&f.dialog, &QDialog::finished);
    f.dialog.show();
    QVERIFY(QTest::qWaitForWindowActive(&f.dialog, vesk::test::PatienceMs));

    f.Button(button).setFocus(Qt::TabFocusReason);
    QTest::keyClick(f.dialog.windowHandle(), Qt::Key_Return);

    QTRY_COMPARE(finished.size(), 1);
    QTEST(finished[0][0].toInt(), "answer");
}

void DebugWarnDialogTest::theDefaultButtonIsMarked()
{
    const DialogFixture inHouse;
    const DialogFixture published(true);
    const auto defaultOf = [](const DebugWarnDialog& dialog) {
        QStringList texts;
        for (const QPushButton* pButton : dialog.findChildren<QPushButton*>())
            if (pButton->isDefault())
                texts << pButton->text();
        return texts;
    };

    QCOMPARE(defaultOf(inHouse.dialog), QStringList(QString::fromUtf8("忽略一次")));
    QCOMPARE(defaultOf(published.dialog), QStringList(QString::fromUtf8("确定")));
}

void DebugWarnDialogTest::theFocusIsSeenInATextBox_data()
{
    QTest::addColumn<int>("index");
    QTest::newRow("message") << int(Message);
    QTest::newRow("file") << int(File);
    QTest::newRow("function") << int(Function);
}

void DebugWarnDialogTest::theFocusIsSeenInATextBox()
{
    QFETCH(int, index);
    DialogFixture f;
    f.dialog.show();
    QVERIFY(QTest::qWaitForWindowActive(&f.dialog, vesk::test::PatienceMs));
    QTextEdit& box = f.Box(index);
    const auto frame = [&box] { return box.grab().toImage().pixelColor(0, box.height() / 2); };
    const QColor before = frame();

    box.setFocus(Qt::TabFocusReason);

    QVERIFY(frame() != before);
    QCOMPARE(frame(), box.palette().color(QPalette::Highlight));
}

void DebugWarnDialogTest::textBoxesAreReadWithTheKeyboard()
{
    DialogFixture f;
    f.dialog.show();
    QVERIFY(QTest::qWaitForWindowActive(&f.dialog, vesk::test::PatienceMs));
    f.Box(File).setFocus(Qt::TabFocusReason);

    QTest::keyClick(f.dialog.windowHandle(), Qt::Key_Right, Qt::ShiftModifier);
    QTest::keyClick(f.dialog.windowHandle(), Qt::Key_X);

    QCOMPARE(f.Box(File).textCursor().selectedText(), QString("s"));
    QCOMPARE(f.Box(File).toPlainText(), QString::fromUtf8("src/文件.cpp"));
}

void DebugWarnDialogTest::longTextsBeginAtTheirBeginning_data()
{
    QTest::addColumn<bool>("isPublished");
    QTest::newRow("in house") << false;
    QTest::newRow("published") << true;
}

void DebugWarnDialogTest::longTextsBeginAtTheirBeginning()
{
    QFETCH(bool, isPublished);
    DialogFixture f(isPublished);
    const std::wstring wide(4000, L'汉');
    const std::string narrow(4000, 'x');

    f.dialog.SetInfo(narrow, 12, narrow, wide, wide, wide);
    f.dialog.show();

    QCOMPARE(f.Line(Person).cursorPosition(), 0);
    QCOMPARE(f.Line(Date).cursorPosition(), 0);
    QCOMPARE(f.Line(LineNumber).cursorPosition(), 0);
    for (const int box : {Message, File, Function})
    {
        QCOMPARE(f.Box(box).textCursor().position(), 0);
        QCOMPARE(f.Box(box).verticalScrollBar()->value(), 0);
    }
}

void DebugWarnDialogTest::userNameAndPasswordAreCopied_data()
{
    QTest::addColumn<QString>("userName");
    QTest::addColumn<QString>("password");
    QTest::addColumn<bool>("isComplete");
    QTest::newRow("neither") << ""
                             << "" << false;
    QTest::newRow("user name") << QString::fromUtf8("用户") << "" << false;
    QTest::newRow("password") << ""
                              << "secret" << false;
    QTest::newRow("both") << QString::fromUtf8("用户") << "secret" << true;
}

void DebugWarnDialogTest::userNameAndPasswordAreCopied()
{
    QFETCH(QString, userName);
    QFETCH(QString, password);
    DialogFixture f;
    f.Line(UserName).setText(userName);
    f.Line(Password).setText(password);
    std::wstring userNameCopy = L"before";
    std::wstring passwordCopy = L"before";

    QTEST(f.dialog.GetUserNameAndPassword(userNameCopy, passwordCopy), "isComplete");

    QCOMPARE(userNameCopy, userName.toStdWString());
    QCOMPARE(passwordCopy, password.toStdWString());
}

}

VESK_TESTS(vesk::test::DebugWarnDialogTest);
#include "DebugWarnDialogTest.moc"
