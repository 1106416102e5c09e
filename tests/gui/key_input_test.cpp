// What a key press means to the model, and the Windows-1252 strings of the
// model as the desktop shows and takes them.
#include <QTest>

#include "gui/window/key_input.h"
#include "gui/window/windows1252.h"

using namespace veridraw;
using namespace veridraw::gui;

Q_DECLARE_METATYPE(veridraw::gui::KeyInput)

namespace {

KeyInput translated(int key, Qt::KeyboardModifiers modifiers, const QString& text) {
  const QKeyEvent event(QEvent::KeyPress, key, modifiers, text);
  return translateKey(event);
}

}  // namespace

class KeyInputTest : public QObject {
  Q_OBJECT

 private slots:
  void translation_data() {
    QTest::addColumn<int>("key");
    QTest::addColumn<Qt::KeyboardModifiers>("modifiers");
    QTest::addColumn<QString>("text");
    QTest::addColumn<KeyInput>("expected");
    const Qt::KeyboardModifiers none;
    QTest::newRow("Enter") << int(Qt::Key_Return) << none << "\r" << KeyInput(Key::Enter);
    QTest::newRow("keypad Enter") << int(Qt::Key_Enter) << Qt::KeyboardModifiers(Qt::KeypadModifier)
                                  << "\r" << KeyInput(Key::Enter);
    QTest::newRow("Space") << int(Qt::Key_Space) << none << " " << KeyInput(Key::Space);
    QTest::newRow("Tab") << int(Qt::Key_Tab) << none << "\t" << KeyInput(Key::Tab);
    QTest::newRow("Shift+Tab") << int(Qt::Key_Backtab) << Qt::KeyboardModifiers(Qt::ShiftModifier)
                               << "" << KeyInput(Key::ShiftTab);
    QTest::newRow("Backspace") << int(Qt::Key_Backspace) << none << "\b"
                               << KeyInput(Key::Backspace);
    QTest::newRow("Delete") << int(Qt::Key_Delete) << none << "" << KeyInput(Key::Delete);
    QTest::newRow("Left") << int(Qt::Key_Left) << none << "" << KeyInput(Key::Left);
    QTest::newRow("Right") << int(Qt::Key_Right) << none << "" << KeyInput(Key::Right);
    QTest::newRow("Up") << int(Qt::Key_Up) << none << "" << KeyInput(Key::Up);
    QTest::newRow("Down") << int(Qt::Key_Down) << none << "" << KeyInput(Key::Down);
    QTest::newRow("Home") << int(Qt::Key_Home) << none << "" << KeyInput(Key::Home);
    QTest::newRow("End") << int(Qt::Key_End) << none << "" << KeyInput(Key::End);
    QTest::newRow("PageUp") << int(Qt::Key_PageUp) << none << "" << KeyInput(Key::PageUp);
    QTest::newRow("PageDown") << int(Qt::Key_PageDown) << none << "" << KeyInput(Key::PageDown);
    QTest::newRow("Escape") << int(Qt::Key_Escape) << none << "\x1b" << KeyInput(Key::Escape);
    QTest::newRow("digit") << int(Qt::Key_7) << none << "7" << KeyInput(TypedText{"7"});
    QTest::newRow("keypad digit") << int(Qt::Key_7) << Qt::KeyboardModifiers(Qt::KeypadModifier)
                                  << "7" << KeyInput(TypedText{"7"});
    QTest::newRow("capital") << int(Qt::Key_A) << Qt::KeyboardModifiers(Qt::ShiftModifier) << "A"
                             << KeyInput(TypedText{"A"});
    QTest::newRow("e acute") << int(Qt::Key_Eacute) << none << "\u00E9"
                             << KeyInput(TypedText{"\xE9"});
    QTest::newRow("euro") << int(Qt::Key_unknown) << none << "\u20AC"
                          << KeyInput(TypedText{"\x80"});
    QTest::newRow("outside Windows-1252")
        << int(Qt::Key_unknown) << none << "\u4E2D" << KeyInput(TypedText{"?"});
    QTest::newRow("Alt+R") << int(Qt::Key_R) << Qt::KeyboardModifiers(Qt::AltModifier) << "r"
                           << KeyInput(AccessKey{'R'});
    QTest::newRow("Alt+Shift+X") << int(Qt::Key_X)
                                 << Qt::KeyboardModifiers(Qt::AltModifier | Qt::ShiftModifier)
                                 << "X" << KeyInput(AccessKey{'X'});
    QTest::newRow("Alt+Enter") << int(Qt::Key_Return) << Qt::KeyboardModifiers(Qt::AltModifier)
                               << "\r" << KeyInput();
    QTest::newRow("Ctrl+C") << int(Qt::Key_C) << Qt::KeyboardModifiers(Qt::ControlModifier)
                            << "\x03" << KeyInput();
    QTest::newRow("AltGr+E") << int(Qt::Key_E)
                             << Qt::KeyboardModifiers(Qt::ControlModifier | Qt::AltModifier)
                             << "\u20AC" << KeyInput(TypedText{"\x80"});
    QTest::newRow("Ctrl+Alt+Delete")
        << int(Qt::Key_Delete) << Qt::KeyboardModifiers(Qt::ControlModifier | Qt::AltModifier) << ""
        << KeyInput();
    QTest::newRow("F1") << int(Qt::Key_F1) << none << "" << KeyInput();
    QTest::newRow("Shift alone") << int(Qt::Key_Shift) << none << "" << KeyInput();
  }

  void translation() {
    QFETCH(int, key);
    QFETCH(Qt::KeyboardModifiers, modifiers);
    QFETCH(QString, text);
    QFETCH(KeyInput, expected);
    QVERIFY(translated(key, modifiers, text) == expected);
  }

  void windows1252ComesInAsUnicode() {
    QCOMPARE(fromWindows1252("Draw 1105"), "Draw 1105");
    QCOMPARE(fromWindows1252("\x80\x85\x99\xA3\xE9\xFF"),
             QString("\u20AC\u2026\u2122\u00A3\u00E9\u00FF"));
    QCOMPARE(fromWindows1252("\x81"), QString(QChar(0x81)));
  }

  void unicodeGoesOutAsWindows1252() {
    QCOMPARE(toWindows1252(QString("\u20AC\u2026\u2122\u00A3\u00E9\u00FF")),
             std::string("\x80\x85\x99\xA3\xE9\xFF"));
    QCOMPARE(toWindows1252(QString("\u4E2D\U0001F600")), "??");
    QCOMPARE(toWindows1252(QString(QChar(0x80))), "?");
  }

  void everyByteComesBackUnchanged() {
    std::string bytes;
    for (int byte = 1; byte < 256; ++byte)
      bytes.push_back(static_cast<char>(byte));
    QCOMPARE(toWindows1252(fromWindows1252(bytes)), bytes);
  }
};

QTEST_MAIN(KeyInputTest)
#include "key_input_test.moc"
