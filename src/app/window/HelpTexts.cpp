#include "app/window/HelpTexts.h"

#include <QApplication>
#include <QMessageBox>
#include <QString>

namespace vantrel {

namespace {

QString Rows(std::initializer_list<std::pair<const char*, const char*>> pcolRows) {
  QString text = "<table cellspacing='6'>";
  for (const auto& [what, does] : pcolRows) text += QString("<tr><td><b>%1</b></td><td>%2</td></tr>").arg(what, does);
  return text + "</table>";
}

}  // namespace

void ShowKeys(QWidget* pobjParent) {
  auto* const box = new QMessageBox(pobjParent);
  box->setAttribute(Qt::WA_DeleteOnClose);
  box->setWindowTitle("Mouse and keys");
  box->setTextFormat(Qt::RichText);
  box->setText(Rows({{"Click, Shift+click", "choose an object, one more"},
                     {"Drag", "move what is chosen, a caption, a bend point; round objects: choose them"},
                     {"Double-click a text, F2", "write it in place; Enter keeps it, Esc does not; Shift+Enter breaks a note's line"},
                     {"Right click", "choose what is there and open its menu"},
                     {"P, T, N", "insert a place, a transition, a note where you clicked last, and write its text"},
                     {"A", "draw an arc from the chosen object to the next one clicked"},
                     {"E, Shift+E", "bend the chosen arc; straighten it"},
                     {"H, V", "align what is chosen"},
                     {"Arrows", "move what is chosen by 5 pixels; with Shift by 1"},
                     {"Tab, Shift+Tab", "choose the next or previous object"},
                     {"Delete, Esc", "delete; let go"},
                     {"Ctrl+wheel, Ctrl++ − 0 9", "zoom; actual size; everything"},
                     {"Wheel, middle button, Space+drag", "move the chart"}}));
  box->setStandardButtons(QMessageBox::Close);
  box->open();
}

void ShowAbout(QWidget* pobjParent) {
  auto* const box = new QMessageBox(pobjParent);
  box->setAttribute(Qt::WA_DeleteOnClose);
  box->setWindowTitle("About Vantrel");
  box->setIconPixmap(QApplication::windowIcon().pixmap(64, 64));
  box->setText(QString("<b>Vantrel %1</b>").arg(QApplication::applicationVersion()));
  box->setInformativeText("Draws workflow nets, stores them and plays them.");
  box->setStandardButtons(QMessageBox::Close);
  box->open();
}

}  // namespace vantrel
