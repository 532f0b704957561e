#include "data/forms/TS_Dateispeichern.h"

#include <QLabel>
#include <QVBoxLayout>

#include "core/globals.h"
#include "platform/controls/Bauteile.h"
#include "platform/controls/Eingabefeld.h"

TS_Dateispeichern::TS_Dateispeichern(QWidget* öffner, const QString& vorschlag)
    : Formular(QStringLiteral("TS_Dateispeichern"), QStringLiteral("Datei speichern"), öffner) {
  m_t = new Eingabefeld(this);
  m_t->setObjectName(QStringLiteral("t"));
  Eingabefeld::Beschreibung beschreibung;
  beschreibung.ersterText = nurErlaubte(vorschlag);
  m_t->einrichten(beschreibung);
  m_t->setMinimumWidth(fontMetrics().averageCharWidth() * 40);

  auto* seite = new QVBoxLayout(this);
  seite->addWidget(
      beschriften(QStringLiteral("Bitte geben Sie den Dateinamen (ohne Endung) ein"), m_t));
  seite->addWidget(m_t);
  auto* hinweis = new QLabel(QStringLiteral("Erlaubt sind Buchstaben ohne Umlaute, Ziffern und _"));
  hinweis->setEnabled(false);
  seite->addWidget(hinweis);
  seite->addStretch();

  Bauteile::okUndSchließen(this, seite);
  connect(m_t, &QLineEdit::textEdited, this, [this](const QString& text) { nachTippen(text); });
  m_t->fokussieren();
}

QString TS_Dateispeichern::nurErlaubte(const QString& text) {
  QString erlaubt;
  for (const QChar c : text)
    if ((c >= u'0' && c <= u'9') || (c >= u'A' && c <= u'Z') || (c >= u'a' && c <= u'z') ||
        c == u'_' || c == u'*')
      erlaubt += c;
  return erlaubt;
}

// Typed and pasted text alike: what isn't allowed falls away, the cursor stays behind the rest.
void TS_Dateispeichern::nachTippen(const QString& text) {
  const QString erlaubt = nurErlaubte(text);
  if (erlaubt == text) return;
  const auto stelle = nurErlaubte(text.left(m_t->cursorPosition())).size();
  m_t->setText(erlaubt);
  m_t->setCursorPosition(static_cast<int>(stelle));
}

void TS_Dateispeichern::done(int ergebnis) {
  TZ_Variablen::DateiErgebnis = ergebnis == Accepted ? m_t->inhalt().trimmed() : QString();
  Formular::done(ergebnis);
}
