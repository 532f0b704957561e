#pragma once

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QElapsedTimer>
#include <QFile>
#include <QLineEdit>
#include <QPrintDialog>
#include <QPushButton>
#include <QTimer>
#include <functional>

// Waits for the system's print dialog and answers it as the user does: chooses the PDF file among
// the printers, gives its path and presses OK, or cancels.
class Druckdialog {
 public:
  // An empty path cancels. The action comes before the answer.
  explicit Druckdialog(QString pfad, std::function<void(QPrintDialog*)> aktion = {})
      : m_pfad(std::move(pfad)), m_aktion(std::move(aktion)) {
    m_uhr.start();
    QObject::connect(&m_takt, &QTimer::timeout, &m_takt, [this] { prüfen(); });
    m_takt.start(5);
  }
  ~Druckdialog() { EXPECT_TRUE(m_war) << "no print dialog came"; }
  Druckdialog(const Druckdialog&) = delete;
  Druckdialog& operator=(const Druckdialog&) = delete;

  // The entry of the PDF file among the printers; -1 when there is none.
  static int pdfEintrag(const QPrintDialog* dialog) {
    const auto* liste = dialog->findChild<QComboBox*>("printers");
    for (int i = 0; liste != nullptr && i < liste->count(); ++i)
      if (liste->itemText(i).contains("PDF")) return i;
    return -1;
  }

 private:
  void prüfen() {
    QWidget* fenster = QApplication::activeModalWidget();
    auto* dialog = qobject_cast<QPrintDialog*>(fenster);
    if (dialog == nullptr || !dialog->isVisible()) {
      if (fenster != nullptr && m_uhr.elapsed() > 10000) fenster->close();  // fails, hangs not
      return;
    }
    m_takt.stop();
    m_war = true;
    if (m_aktion) m_aktion(dialog);
    if (m_pfad.isEmpty()) {
      dialog->reject();
      return;
    }
    const int eintrag = pdfEintrag(dialog);
    auto* datei = dialog->findChild<QLineEdit*>("filename");
    auto* knöpfe = dialog->findChild<QDialogButtonBox*>();
    if (eintrag < 0 || datei == nullptr || knöpfe == nullptr) {
      ADD_FAILURE() << "the print dialog offers no PDF file";
      dialog->reject();
      return;
    }
    auto* drucker = dialog->findChild<QComboBox*>("printers");
    drucker->setCurrentIndex(eintrag);
    QFile::remove(m_pfad);  // the dialog would ask before it replaces a file
    datei->setText(m_pfad);
    knöpfe->button(QDialogButtonBox::Ok)->click();
  }

  QString m_pfad;
  std::function<void(QPrintDialog*)> m_aktion;
  QTimer m_takt;
  QElapsedTimer m_uhr;
  bool m_war = false;
};
