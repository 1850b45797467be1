#include "qt/question_box.h"

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>

namespace qrn::eddpanel {

ForChanges QuestionBox::ask(const std::string& page, const Edits& edits) {
  QMessageBox box(QApplication::activeWindow());
  box.setIcon(QMessageBox::Question);
  box.setWindowTitle(QString::fromStdString(page));
  // Never read as markup, whatever the page is called.
  box.setTextFormat(Qt::PlainText);
  box.setText(QString::fromStdString(questionText(page, edits)));
  box.setStandardButtons(QMessageBox::Apply | QMessageBox::Discard | QMessageBox::Cancel);
  box.button(QMessageBox::Apply)->setText("&Apply");
  box.button(QMessageBox::Discard)->setText("&Discard");
  box.setDefaultButton(QMessageBox::Apply);
  box.setEscapeButton(QMessageBox::Cancel);
  switch (box.exec()) {
    case QMessageBox::Apply: return ForChanges::Apply;
    case QMessageBox::Discard: return ForChanges::Discard;
    default: return ForChanges::KeepOpen;
  }
}

}  // namespace qrn::eddpanel
