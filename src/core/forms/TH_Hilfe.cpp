#include "core/forms/TH_Hilfe.h"

#include <QKeyEvent>
#include <QPushButton>
#include <QScrollBar>
#include <QTextBrowser>
#include <QTextDocument>

#include "core/globals.h"
#include "core/help.h"
#include "platform/files/Textdatei.h"

namespace {

QString aussehen(const QPalette& palette) {
  return QStringLiteral(
             "h2 { color: %1; font-size: x-large; margin-bottom: 10px; }"
             "h3 { color: %1; font-size: large; margin-top: 16px; margin-bottom: 4px; }"
             "p { margin-top: 0px; margin-bottom: 8px; }"
             "li { margin-bottom: 4px; }")
      .arg(palette.color(QPalette::Link).name());
}

}  // namespace

TH_Hilfe::TH_Hilfe(QWidget* öffner)
    : Formular(QStringLiteral("TH_Hilfe"), QStringLiteral("Hilfe"), öffner) {
  m_text = new QTextBrowser(this);
  m_text->setObjectName(QStringLiteral("hilfetext"));
  m_text->setAccessibleName(QStringLiteral("Hilfetext"));
  m_text->setOpenLinks(false);
  m_text->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  m_text->setTabChangesFocus(true);
  m_text->document()->setDocumentMargin(fontMetrics().height());
  QFont schrift = m_text->font();
  schrift.setPointSizeF(schrift.pointSizeF() * 1.1);
  m_text->setFont(schrift);

  zusammensetzen(m_text, {.hilfe = {}, .schließen = QStringLiteral("schliessen")});
  schließknopf()->setDefault(true);
  setWunschgröße(100, 40);
}

void TH_Hilfe::füllen() {
  if (!Textdatei::existiert(Hilfe::datei())) throw Dateifehler(Hilfe::fehltMeldung());
  const QString& thema = TZ_Variablen::HilfeThema;
  m_text->document()->setDefaultStyleSheet(aussehen(m_text->palette()));
  m_text->setHtml(
      Hilfe::alsHtml(Hilfe::abschnitt(thema).value_or(Hilfe::ohneAbschnitt(thema))).trimmed());
  m_text->verticalScrollBar()->setValue(0);
  m_text->setFocus();
}

// F1 in the help window would open it once more.
void TH_Hilfe::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_F1) {
    event->accept();
    return;
  }
  Formular::keyPressEvent(event);
}
