// Skins as scoped style sheets: the rules reach skinned widgets only, and the
// main window's exempted widgets (the games, the list, the Ok frame) keep the
// plain look, the list its fixed-pitch font.

#include <gtest/gtest.h>

#include <QFile>
#include <QFontInfo>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>

#include "app/viste/skin.h"
#include "tests/app/banco_app.h"

namespace schedine::test {
namespace {

TEST(Skin, EverySelectorIsNarrowedInItsLastPart) {
  QString foglio = QStringLiteral(
      "/* a comment { with braces } */\n"
      "QWidget { color: #111; }\n"
      "QGroupBox::title { left: 8px; }\n"
      "QPushButton:hover, QCheckBox:disabled { color: red; }\n"
      "QFrame QLabel { color: blue; }\n");
  QString atteso = QStringLiteral(
      "QWidget[skin=\"true\"] { color: #111; }\n"
      "QGroupBox[skin=\"true\"]::title { left: 8px; }\n"
      "QPushButton[skin=\"true\"]:hover, QCheckBox[skin=\"true\"]:disabled { color: red; }\n"
      "QFrame QLabel[skin=\"true\"] { color: blue; }\n");
  EXPECT_EQ(foglio_delimitato(foglio), atteso);
}

TEST(Skin, MainWindowKeepsItsExemptionsAndTheListItsFixedFont) {
  banco_app b;
  b.avvia();
  finestra_modulo* f = b.finestra("Form1");
  ASSERT_NE(f, nullptr);
  QFile file(QStringLiteral(SCHEDINE_SKIN_DIR "/skin1_1.skn"));
  ASSERT_TRUE(file.open(QIODevice::ReadOnly));
  applica_skin(*f, QString::fromUtf8(file.readAll()));

  auto* lista = b.widget<QListWidget>("Form1", "List1");
  EXPECT_FALSE(lista->property("skin").toBool());
  EXPECT_FALSE(lista->viewport()->property("skin").toBool());
  EXPECT_FALSE(b.widget<QRadioButton>("Form1", "Option1", 4)->property("skin").toBool());
  // Inside the exempted Ok frame the buttons are skinned.
  EXPECT_TRUE(b.widget<QPushButton>("Form1", "cmdok")->property("skin").toBool());
  EXPECT_TRUE(b.widget<QPushButton>("Form1", "Command7")->property("skin").toBool());

  lista->ensurePolished();
  EXPECT_TRUE(QFontInfo(lista->font()).fixedPitch());
  EXPECT_EQ(QFontInfo(lista->font()).family(), "Liberation Mono");
  auto* bottone = b.widget<QPushButton>("Form1", "Command7");
  bottone->ensurePolished();
  EXPECT_EQ(bottone->palette().color(QPalette::ButtonText), QColor("#ffffff"));
}

}  // namespace
}  // namespace schedine::test
