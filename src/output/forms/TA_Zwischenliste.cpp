#include "output/forms/TA_Zwischenliste.h"

#include <QCheckBox>
#include <QDir>
#include <QMenu>
#include <QPushButton>

#include "core/globals.h"
#include "output/Excelausgabe.h"
#include "output/Textliste.h"
#include "output/Uebergabe.h"
#include "output/Webbericht.h"
#include "output/forms/TA_Textausgabe.h"
#include "platform/controls/Bauteile.h"
#include "platform/controls/Ereignis.h"
#include "platform/controls/Fortschrittsbalken.h"
#include "platform/controls/Grid.h"
#include "platform/controls/Meldungen.h"
#include "platform/controls/Oeffnen.h"

using namespace TZ_Variablen;

using Bauteile::knopfOhneEnter;

namespace {

constexpr int KleinsteBreite = 27;  // pixels

}  // namespace

TA_Zwischenliste::TA_Zwischenliste(QWidget* öffner)
    : Formular("TA_Zwischenliste", "Daten listen", öffner) {
  aufbauen();
  popupBauen();
  verbinden();
}

TA_Zwischenliste::TA_Zwischenliste(QWidget* öffner, Ausgabeliste geschrieben)
    : TA_Zwischenliste(öffner) {
  m_geschrieben = std::move(geschrieben);
}

void TA_Zwischenliste::aufbauen() {
  m_gridli = new Grid;
  m_gridli->setObjectName("gridli");
  m_gridli->setAccessibleName("Liste");
  m_gridli->setLayoutSchlüssel("TOVA/ta_zwischenliste_gridli/ColWidths");
  m_gridli->setContextMenuPolicy(Qt::CustomContextMenu);
  m_kon = new QCheckBox("Automatische Spaltenbreite");
  m_kon->setObjectName("kon");
  m_meter = new Fortschrittsbalken;

  const QList<QWidget*> knöpfe = knöpfeBauen();
  zusammensetzen(Bauteile::untereinander({{m_gridli, 1}, {m_meter}, {Bauteile::leiste({m_kon})}}),
                 {.links = knöpfe, .schließen = "cmdschließen", .ohneEnter = true});
  setTabfolge({m_gridli, m_kon});
  setWunschgröße(150, 40);  // wide lists want room
}

QList<QWidget*> TA_Zwischenliste::knöpfeBauen() {
  m_comtext = knopfOhneEnter("&Text-Auswertung", "comtext");
  m_comtext->setToolTip("Die Liste als Text anzeigen und drucken");
  m_comexcel = knopfOhneEnter("&Excel-Auswertung", "comexcel");
  m_comexcel->setToolTip("Die Liste als Tabelle in der Tabellenkalkulation öffnen");
  m_roexplorer[0] = knopfOhneEnter("Stan&dard-Explorer", "roexplorer_0");
  m_roexplorer[0]->setToolTip("Die Liste als Internetseite im Browser öffnen");
  m_roexplorer[1] = knopfOhneEnter("&Internet-Explorer", "roexplorer_1");
  m_roexplorer[1]->setToolTip("Die Liste als Internetseite im Browser öffnen");
  return {m_comtext, m_comexcel, m_roexplorer[0], m_roexplorer[1]};
}

void TA_Zwischenliste::popupBauen() {
  m_popzeile = new QMenu(this);
  m_popzeile->setObjectName("popzeile");
  const auto punkt = [this](int nummer, const QString& text, QPushButton* wie) {
    QAction* aktion = m_popzeile->addAction(text);
    aktion->setObjectName("popzeile_" + QString::number(nummer));
    connect(aktion, &QAction::triggered, wie, [wie] { wie->click(); });
  };
  punkt(0, "Übergabe an &Texteditor", m_comtext);
  punkt(1, "Übergabe an &Excel", m_comexcel);
  punkt(2, "Übergabe an &Standard-Explorer", m_roexplorer[0]);
  punkt(3, "Übergabe an &Internet-Explorer", m_roexplorer[1]);
  m_popzeile->addSeparator();
  punkt(5, "&Schließen", schließknopf());
}

void TA_Zwischenliste::verbinden() {
  Ereignis::wenn(m_kon, &QCheckBox::clicked, this, [this](bool an) {
    if (an) breitenAnpassen();
  });
  Ereignis::wenn(m_comtext, &QPushButton::clicked, this, [this] { textAuswertung(); });
  Ereignis::wenn(m_comexcel, &QPushButton::clicked, this, [this] { excelAuswertung(); });
  for (QPushButton* k : m_roexplorer)
    Ereignis::wenn(k, &QPushButton::clicked, this, [this] { explorerAuswertung(); });
  connect(m_gridli, &QWidget::customContextMenuRequested, this,
          [this](const QPoint& ort) { m_popzeile->popup(m_gridli->viewport()->mapToGlobal(ort)); });
}

void TA_Zwischenliste::füllen() {
  {
    const Ereignis::Sanduhr sanduhr;
    const Ausgabeliste gelesen =
        m_geschrieben ? *std::exchange(m_geschrieben, {}) : Übergabe::lesen(Übergabe::datei());
    m_überschriften = gelesen.überschriften();
    for (int i = 0; i < gelesen.spalten(); ++i)  // the widths go by the captions
      m_gridli->setÜberschrift(gelesen.daten()->spalte(i).name, m_überschriften.at(i));
    m_gridli->setDaten(gelesen.daten(), gelesen.ordnung());
  }
  m_kon->setChecked(EinstellungenZahl[Zahlslots.spaltenbreiteAutomatisch] != 0);
  if (m_kon->isChecked()) breitenAnpassen();
  m_gridli->setFocus();
}

void TA_Zwischenliste::breitenAnpassen() { m_gridli->passeBreitenAn(KleinsteBreite); }

void TA_Zwischenliste::done(int ergebnis) {
  if (m_meter->läuft()) return;
  EinstellungenZahl[Zahlslots.spaltenbreiteAutomatisch] = m_kon->isChecked() ? 1 : 0;
  Formular::done(ergebnis);
  m_gridli->setDaten({});
}

Ausgabeliste TA_Zwischenliste::liste() const {
  return Ausgabeliste(m_gridli->daten(), m_überschriften, m_gridli->ordnung());
}

bool TA_Zwischenliste::istLeer() {
  if (m_gridli->zeilen() > 0) return false;
  Meldungen::Hinweis("Es sind keine Daten in der Liste.", this);
  return true;
}

void TA_Zwischenliste::textAuswertung() {
  if (istLeer()) return;
  AusgabeDatei = Textliste::datei();
  m_meter->laufen([this](const Fortschritt& fortschritt) {
    Textliste::schreiben(AusgabeDatei, liste(), listenkopf(), Textliste::trennzeichen(),
                         fortschritt);
  });
  TA_Textausgabe::öffnen(this);
}

void TA_Zwischenliste::excelAuswertung() {
  if (istLeer()) return;
  const QString datei = Excelausgabe::datei();
  m_meter->laufen([&](const Fortschritt& fortschritt) {
    Excelausgabe::schreiben(datei, liste(), listenkopf(), fortschritt);
  });
  if (Öffnen::datei(datei)) return;
  Meldungen::Hinweis("Excel konnte nicht geöffnet werden!", this);
  FormModus = "xyz";
}

// Both buttons mean the one browser that the system has for web pages.
void TA_Zwischenliste::explorerAuswertung() {
  if (istLeer()) return;
  QString seite;
  m_meter->laufen([&](const Fortschritt& fortschritt) {
    seite = Webbericht::schreiben(AppPfad, liste(), Webbericht::vorgaben(), fortschritt);
  });
  if (Öffnen::datei(seite)) return;
  Meldungen::Hinweis(QString("Der Browser konnte nicht geöffnet werden! Die Liste steht in der "
                             "Datei %1.")
                         .arg(QDir::toNativeSeparators(seite)),
                     this);
}

void zwischenlisteZeigen(QWidget* öffner, const Ausgabeliste& liste, Fortschrittsbalken* meter) {
  const auto schreiben = [&](const Fortschritt& fortschritt) {
    Übergabe::schreiben(Übergabe::datei(), liste, fortschritt);
  };
  if (meter != nullptr) {
    meter->laufen(schreiben);
  } else {
    const Ereignis::Sanduhr sanduhr;
    schreiben({});
  }
  TA_Zwischenliste(öffner, liste).zeigen();
}

void zwischenlisteZeigen(QWidget* öffner, const Daten& daten, const QStringList& überschriften) {
  zwischenlisteZeigen(öffner, Ausgabeliste(daten, überschriften));
}

namespace {

// Columns whose texts the grid makes itself are handed on as those texts.
Ausgabeliste ausGrid(const Grid& grid) {
  const Daten daten = grid.daten();
  QStringList überschriften;
  bool gemacht = false;
  for (int i = 0; i < grid.spalten(); ++i) {
    überschriften += grid.überschrift(i);
    gemacht = gemacht || grid.hatAnzeige(i);
  }
  if (!gemacht) return Ausgabeliste(daten, überschriften, grid.ordnung());
  std::vector<Spalte> spalten;
  spalten.reserve(static_cast<size_t>(grid.spalten()));
  for (int i = 0; i < grid.spalten(); ++i)
    spalten.push_back(grid.hatAnzeige(i) ? Spalte{daten->spalte(i).name, Feldtyp::Memo, 0}
                                         : daten->spalte(i));
  Datenblock::Bauer bauer(spalten);
  const std::vector<int> ordnung = grid.ordnung();
  for (int zeile = 0; zeile < grid.zeilen(); ++zeile)
    for (int i = 0; i < grid.spalten(); ++i) {
      if (grid.hatAnzeige(i))
        bauer.text(grid.text(zeile, i));
      else
        bauer.wert(daten->wert(ordnung[static_cast<size_t>(zeile)], i));
    }
  return Ausgabeliste(bauer.fertig(), überschriften);
}

}  // namespace

void zwischenlisteZeigen(QWidget* öffner, const Grid& grid) {
  zwischenlisteZeigen(öffner, ausGrid(grid));
}
