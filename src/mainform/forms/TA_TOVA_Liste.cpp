#include <QButtonGroup>
#include <QCheckBox>
#include <QLabel>
#include <QMenu>
#include <QPlainTextEdit>
#include <QPointer>
#include <QPushButton>
#include <QRadioButton>
#include <QScopeGuard>
#include <QToolBar>
#include <QToolButton>

#include "core/globals.h"
#include "data/helpers.h"
#include "mainform/Listenersatz.h"
#include "mainform/Volkanzeige.h"
#include "mainform/Volkliste.h"
#include "mainform/forms/Bildfeld.h"
#include "mainform/forms/TA_TOVA.h"
#include "output/forms/TA_Textausgabe.h"
#include "platform/controls/Ereignis.h"
#include "platform/controls/Grid.h"
#include "platform/controls/Meldungen.h"
#include "platform/files/Textdatei.h"

using namespace TZ_Variablen;

int TA_TOVA::zeilen() const { return m_datali->zeilen(); }

int TA_TOVA::aktuelleZeile() const { return m_datali->aktuelleZeile(); }

void TA_TOVA::setAktuelleZeile(int zeile) {
  m_datali->setAktuelleZeile(zeile);
  zeileÜbernehmen();
}

QList<int> TA_TOVA::markierteZeilen() const { return m_datali->markierteZeilen(); }

void TA_TOVA::setMarkierteZeilen(const QList<int>& zeilen) { m_datali->setMarkierteZeilen(zeilen); }

QString TA_TOVA::zelle(int zeile, const QString& spalte) const {
  return zeile < 0 || zeile >= zeilen() ? QString() : m_datali->zelle(zeile, spalte);
}

void TA_TOVA::löscheZeile(int zeile) {
  m_datali->löscheZeile(zeile, m_db, QStringLiteral("Bienenvolk"));
  m_db.NachFestschreiben([this] {
    zeileÜbernehmen();
    befehleAnpassen();
    filterBeschriften();
  });
}

void TA_TOVA::datenvölkerlesen() {
  for (const QString& meldung : listeLesen())
    if (!meldung.isEmpty()) Meldungen::Hinweis(meldung, this);
}

// A failing statement must not leave the program locked, nor come back at each activation. Gives
// what is to be told once the program is free again.
QStringList TA_TOVA::listeLesen() {
  const Ereignis::Sanduhr sanduhr;
  const QPointer<QWidget> imFokus = focusWidget();
  MenueSperren(false);
  const auto frei = qScopeGuard([this, imFokus] {
    MenueSperren(true);
    ListeNeuLesen = 0;
    if (imFokus) imFokus->setFocus();
  });

  listenfelderPrüfen();
  const auto welche = static_cast<Volkfilter>(m_filter->checkedId());
  const Volkzeilen gelesen = volklisteMitErsatz(m_db, welche);
  m_datali->setDaten(gelesen.daten);
  stockkartenfelderPrüfen();
  const QString stockmeldung = stockkartenfelderErsetzen(m_db);
  const Listensortierung sortierung = gemerkteSortierung(m_datali->spalten());
  if (sortierung.spalte >= 0) m_datali->sortiere(sortierung.spalte, sortierung.richtung);
  setAktuelleZeile(zeilen() > 0 ? 0 : -1);
  befehleAnpassen();
  filterBeschriften();
  return {gelesen.meldung, stockmeldung};
}

void TA_TOVA::filterBeschriften() {
  const QStringList texte = filterbeschriftungen(volkanzahl(m_db));
  for (int i = 0; i < 3; ++i) m_optiverkauft[static_cast<size_t>(i)]->setText(texte[i]);
  leerhinweisSetzen();
}

void TA_TOVA::leerhinweisSetzen() {
  m_leerhinweis->setVisible(zeilen() == 0);
  m_leerhinweis->setText(
      m_filter->checkedId() == static_cast<int>(Volkfilter::Abgang)
          ? QStringLiteral("Von Ihren Völkern ist keines abgegangen.")
          : QStringLiteral("Hier erscheinen Ihre Völker.\nDas erste geben Sie im Menü „Völker“ mit "
                           "„Neue Völker eingeben“ ein."));
}

void TA_TOVA::zeileÜbernehmen() {
  AktVolkID = zelle(aktuelleZeile(), QStringLiteral("ID"));
  if (BildAnhalten == 0) befehleAnpassen();
}

void TA_TOVA::MenueSperren(bool frei) {
  for (QToolBar* leiste : m_mleiste) leiste->setEnabled(frei);
  for (QMenu* menü : std::as_const(m_menüs)) menü->setEnabled(frei);
  for (QWidget* widget : std::initializer_list<QWidget*>{m_cmdok, m_abwaerts[0], m_abwaerts[1],
                                                         m_comdrucken, m_datali})
    widget->setEnabled(frei);
}

void TA_TOVA::VolkAnzeigen() {
  const int zeile = aktuelleZeile();
  if (zeile < 0) {
    Meldungen::Hinweis(
        QStringLiteral(
            "Bitte markieren Sie erst das Volk, von dem Sie die verschiedenen Daten anzeigen "
            "möchten oder machen Sie einen Doppelklick auf das entsprechende Volk."),
        this);
    return;
  }
  const Ereignis::Sanduhr sanduhr;
  const auto spaltenwert = [this, zeile](const QString& spalte) { return zelle(zeile, spalte); };
  Volkanzeige::Honig honig;
  if (m_kon1->isChecked()) honig = Volkanzeige::honig(m_db, spaltenwert(QStringLiteral("ID")));
  m_bild->zeigen(spaltenwert(QStringLiteral("Volknr")), spaltenwert(QStringLiteral("Volkname")),
                 Volkbild::bild(spaltenwert, m_rahmen), honig);
  m_text = Volkanzeige::text(m_db, spaltenwert, m_kon->isChecked());
  m_text1->setPlainText(m_text);
}

void TA_TOVA::wechseln(int richtung) {
  VolkWechseln(richtung);
  VolkAnzeigen();
}

void TA_TOVA::panelListen() {
  if (aktuelleZeile() < 0) {
    Meldungen::Hinweis(QStringLiteral("Sie müssen zuerst ein Volk auswählen, bevor Sie die Daten "
                                      "listen/drucken können."),
                       this);
    return;
  }
  VolkAnzeigen();
  FormModus = m_text;
  AusgabeDatei = AppPfad + QStringLiteral("LISTE.TXT");
  Textdatei::flüchtigSchreibenGanz(AusgabeDatei, m_text);
  TA_Textausgabe::öffnen(this);
}

void TA_TOVA::grafikUmschalten() {
  EinstellungenZahl[Zahlslots.grafikZeigen] = m_kon1->isChecked() ? 1 : 0;
  m_bild->setVisible(m_kon1->isChecked());
  if (!m_grafikGesperrt) VolkAnzeigen();
}

void TA_TOVA::breitenUmschalten() {
  EinstellungenZahl[Zahlslots.infofensterBreit] =
      EinstellungenZahl[Zahlslots.infofensterBreit] != 0 ? 0 : 1;
  breitenTeilen();
}
