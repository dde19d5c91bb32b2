#include "network/widgets/qipdot.h"
#include "network/widgets/qipedit.h"

#include <QApplication>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QtTest>

class TestQIpEdit : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void setTextNeedsFourParts_data();
    void setTextNeedsFourParts();
    void readsNormalisedAddresses();
    void typingClampsAndMovesOn_data();
    void typingClampsAndMovesOn();
    void homeEndsInTheLastField();
    void arrowsCrossFieldsAtTheirEdges();
    void clearButtonEmptiesEveryField();
    void disabledDotsTakeTheInactiveBase();

private:
    QLineEdit* field(int index) const { return m_fields.at(index); }

    std::unique_ptr<QIpEdit> m_edit;
    QList<QLineEdit*> m_fields;
};

void TestQIpEdit::init()
{
    m_edit = std::make_unique<QIpEdit>();
    m_fields = m_edit->findChildren<QLineEdit*>();
    QCOMPARE(m_fields.size(), 4);
    m_edit->show();
    QApplication::setActiveWindow(m_edit.get());
    QVERIFY(QTest::qWaitForWindowActive(m_edit.get()));
}

void TestQIpEdit::cleanup()
{
    m_edit.reset();
}

void TestQIpEdit::setTextNeedsFourParts_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("shown");
    QTest::newRow("address") << "192.168.0.10" << "192.168.0.10";
    QTest::newRow("three parts change nothing") << "192.168.0" << "10.0.0.1";
    QTest::newRow("five parts change nothing") << "1.2.3.4.5" << "10.0.0.1";
    QTest::newRow("empty part") << "1..2.3" << "1.0.2.3";
    QTest::newRow("empty text") << "" << "10.0.0.1";
}

void TestQIpEdit::setTextNeedsFourParts()
{
    QFETCH(QString, text);
    // Starts empty: the initial "any" address has no four parts.
    QCOMPARE(m_edit->text(), QStringLiteral("0.0.0.0"));
    m_edit->setAddress(QStringLiteral("10.0.0.1"));
    m_edit->setText(text);
    QTEST(m_edit->text(), "shown");
}

void TestQIpEdit::readsNormalisedAddresses()
{
    m_edit->setText(QStringLiteral("010.1.2.3"));
    QCOMPARE(m_edit->text(), QStringLiteral("010.1.2.3"));
    QCOMPARE(m_edit->addressText(), QStringLiteral("10.1.2.3"));
    QCOMPARE(m_edit->toIPv4Address(), 0x0A010203u);
    m_edit->setAddress(0xC0A83217u);
    QCOMPARE(m_edit->text(), QStringLiteral("192.168.50.23"));
}

void TestQIpEdit::typingClampsAndMovesOn_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("shown");
    QTest::addColumn<int>("focusAfter");
    QTest::newRow("above 255") << 0 << "300" << "255" << 1;
    QTest::newRow("three digits move on") << 1 << "192" << "192" << 2;
    QTest::newRow("two digits stay") << 1 << "19" << "19" << 1;
    QTest::newRow("last field stays") << 3 << "254" << "254" << 3;
    QTest::newRow("letters are refused") << 2 << "a1b" << "1" << 2;
}

void TestQIpEdit::typingClampsAndMovesOn()
{
    QFETCH(int, index);
    QFETCH(QString, typed);
    QFETCH(int, focusAfter);
    QSignalSpy finished(m_edit.get(), &QIpEdit::editingFinished);
    field(index)->setFocus();
    QTest::keyClicks(field(index), typed);
    QTest::qWait(0); // the queued slot
    QApplication::processEvents();
    QTEST(field(index)->text(), "shown");
    QTRY_VERIFY(field(focusAfter)->hasFocus());
    if (focusAfter != index)
        QCOMPARE(field(focusAfter)->selectedText(), field(focusAfter)->text());
    QVERIFY(!finished.isEmpty());
}

void TestQIpEdit::homeEndsInTheLastField()
{
    m_edit->setText(QStringLiteral("1.22.133.44"));
    for (int index : {0, 1, 2}) {
        field(index)->setFocus();
        QTest::keyClick(field(index), Qt::Key_Home);
        QTRY_VERIFY(field(3)->hasFocus());
        QCOMPARE(field(3)->cursorPosition(), 2);
    }
}

void TestQIpEdit::arrowsCrossFieldsAtTheirEdges()
{
    m_edit->setText(QStringLiteral("1.22.133.44"));
    field(1)->setFocus();
    field(1)->setCursorPosition(1);
    QTest::keyClick(field(1), Qt::Key_Left); // inside the text: stays
    QTest::keyClick(field(1), Qt::Key_Left); // at its start: to the end of the left field
    QTRY_VERIFY(field(0)->hasFocus());
    QCOMPARE(field(0)->cursorPosition(), 1);
    QTest::keyClick(field(0), Qt::Key_Right); // at its end: to the start of the right field
    QTRY_VERIFY(field(1)->hasFocus());
    QCOMPARE(field(1)->cursorPosition(), 0);
}

void TestQIpEdit::clearButtonEmptiesEveryField()
{
    m_edit->setText(QStringLiteral("1.2.3.4"));
    auto* clear = m_edit->findChild<QPushButton*>(QStringLiteral("clearAddress"));
    QVERIFY(clear);
    QVERIFY(!clear->icon().isNull());
    clear->click();
    for (const QLineEdit* octet : m_fields)
        QVERIFY(octet->text().isEmpty());
    QCOMPARE(m_edit->text(), QStringLiteral("0.0.0.0"));
}

void TestQIpEdit::disabledDotsTakeTheInactiveBase()
{
    QPalette palette = QApplication::palette("QLineEdit");
    palette.setColor(QPalette::Active, QPalette::Base, QColor(QStringLiteral("#101010")));
    palette.setColor(QPalette::Inactive, QPalette::Base, QColor(QStringLiteral("#202020")));
    palette.setColor(QPalette::Disabled, QPalette::Base, QColor(QStringLiteral("#303030")));
    QApplication::setPalette(palette, "QLineEdit");
    QIpEdit edit;
    const QList<QIpDot*> dots = edit.findChildren<QIpDot*>();
    QCOMPARE(dots.size(), 3);
    QCOMPARE(dots.first()->text(), QStringLiteral("."));
    QCOMPARE(dots.first()->styleSheet(), QStringLiteral("background: #101010"));
    edit.setEnabled(false);
    for (const QIpDot* dot : dots)
        QCOMPARE(dot->styleSheet(), QStringLiteral("background: #202020"));
    edit.setEnabled(true);
    QCOMPARE(dots.last()->styleSheet(), QStringLiteral("background: #101010"));
}

QTEST_MAIN(TestQIpEdit)
#include "tst_qipedit.moc"
