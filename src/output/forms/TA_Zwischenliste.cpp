#include "output/forms/TA_Zwischenliste.h"

#include <QApplication>
#include <QCheckBox>
#include <QDir>
#include <QElapsedTimer>
#include <QGridLayout>
#include <QMenu>
#include <QProgressBar>
#include <QPushButton>
#include <QScopeGuard>
#include <QScreen>
#include <QVBoxLayout>

#include "core/globals.h"
#include "output/Excelausgabe.h"
#include "output/Textliste.h"
#include "output/Uebergabe.h"
#include "output/Webbericht.h"
#include "output/forms/TA_Textausgabe.h"
#include "platform/controls/Bauteile.h"
#include "platform/controls/Ereignis.h"
#include "platform/controls/Grid.h"
#include "platform/controls/Meldungen.h"
#include "platform/controls/Oeffnen.h"

using namespace TZ_Variablen;

using Bauteile::knopfOhneEnter;

namespace {

constexpr int KleinsteBreite = 27;     // pixels
constexpr qint64 LangeListe = 200000;  // cells; shorter lists are written in a moment
constexpr int ZwischenbildMs = 60;

}  // namespace

TA_Zwischenliste::TA_Zwischenliste(QWidget* oeffner)
    : Formular("TA_Zwischenliste", "Daten listen", oeffner) {
  aufbauen();
  popupBauen();
  verbinden();
}

void TA_Zwischenliste::aufbauen() {
  gridli = new Grid;
  gridli->setObjectName("gridli");
  gridli->setAccessibleName("Liste");
  gridli->setLayoutSchluessel("TOVA/ta_zwischenliste_gridli/ColWidths");
  gridli->setContextMenuPolicy(Qt::CustomContextMenu);
  kon = new QCheckBox("Automatische Spaltenbreite");
  kon->setObjectName("kon");
  gridli->setMinimumHeight(gridli->fontMetrics().height() * 12);
  meter = new QProgressBar;
  meter->setObjectName("meter");
  meter->setAccessibleName("Fortschritt");
  meter->hide();

  auto* seite = new QVBoxLayout(this);
  seite->addWidget(gridli, 1);
  seite->addWidget(meter);
  seite->addWidget(knopfleiste());
  Bauteile::tabfolge(
      {gridli, kon, comtext, comexcel, roexplorer[0], roexplorer[1], hilfe, cmdschließen});
  // Wide lists want room: most of the screen, and never more than it has.
  const QSize frei = screen()->availableGeometry().size();
  resize(QSize(1000, 640).boundedTo(frei * 9 / 10));
}

QWidget* TA_Zwischenliste::knopfleiste() {
  comtext = knopfOhneEnter("&Text-Auswertung", "comtext");
  comtext->setToolTip("Die Liste als Text anzeigen und drucken");
  comexcel = knopfOhneEnter("&Excel-Auswertung", "comexcel");
  comexcel->setToolTip("Die Liste als Tabelle in der Tabellenkalkulation öffnen");
  roexplorer[0] = knopfOhneEnter("Stan&dard-Explorer", "roexplorer_0");
  roexplorer[0]->setToolTip("Die Liste als Internetseite im Browser öffnen");
  roexplorer[1] = knopfOhneEnter("&Internet-Explorer", "roexplorer_1");
  roexplorer[1]->setToolTip("Die Liste als Internetseite im Browser öffnen");
  hilfe = knopfOhneEnter("&Hilfe", "hilfe");
  cmdschließen = knopfOhneEnter("&Schließen", "cmdschließen");

  auto* leiste = new QWidget;
  auto* raster = new QGridLayout(leiste);
  raster->setContentsMargins(0, 0, 0, 0);
  raster->addWidget(kon, 0, 0);
  raster->setColumnStretch(1, 1);
  int spalte = 2;
  for (QPushButton* k : {comtext, comexcel, roexplorer[0], roexplorer[1], hilfe, cmdschließen})
    raster->addWidget(k, 0, spalte++);
  return leiste;
}

void TA_Zwischenliste::popupBauen() {
  popzeile = new QMenu(this);
  popzeile->setObjectName("popzeile");
  const auto punkt = [this](int nummer, const QString& text, QPushButton* wie) {
    QAction* aktion = popzeile->addAction(text);
    aktion->setObjectName("popzeile_" + QString::number(nummer));
    connect(aktion, &QAction::triggered, wie, [wie] { wie->click(); });
  };
  punkt(0, "Übergabe an &Texteditor", comtext);
  punkt(1, "Übergabe an &Excel", comexcel);
  punkt(2, "Übergabe an &Standard-Explorer", roexplorer[0]);
  punkt(3, "Übergabe an &Internet-Explorer", roexplorer[1]);
  popzeile->addSeparator();
  punkt(5, "&Schließen", cmdschließen);
}

void TA_Zwischenliste::verbinden() {
  Ereignis::wenn(kon, &QCheckBox::clicked, this, [this](bool an) {
    if (an) breitenAnpassen();
  });
  Ereignis::wenn(comtext, &QPushButton::clicked, this, [this] { textAuswertung(); });
  Ereignis::wenn(comexcel, &QPushButton::clicked, this, [this] { excelAuswertung(); });
  for (QPushButton* k : roexplorer)
    Ereignis::wenn(k, &QPushButton::clicked, this, [this] { explorerAuswertung(); });
  Ereignis::wenn(hilfe, &QPushButton::clicked, this, [this] { hilfeZeigen(); });
  Ereignis::wenn(cmdschließen, &QPushButton::clicked, this, [this] { reject(); });
  connect(gridli, &QWidget::customContextMenuRequested, this,
          [this](const QPoint& ort) { popzeile->popup(gridli->viewport()->mapToGlobal(ort)); });
}

void TA_Zwischenliste::zeigen() {
  laden();
  Formular::zeigen();
}

void TA_Zwischenliste::laden() {
  {
    const Ereignis::Sanduhr sanduhr;
    const Ausgabeliste gelesen = Uebergabe::lesen(Uebergabe::datei());
    m_ueberschriften = gelesen.ueberschriften();
    gridli->setDaten(gelesen.daten());
    for (int i = 0; i < gelesen.spalten(); ++i)
      gridli->setUeberschrift(gelesen.daten()->spalte(i).name, m_ueberschriften.at(i));
  }
  kon->setChecked(EinstellungenZahl[54] != 0);
  if (kon->isChecked()) breitenAnpassen();
  gridli->setFocus();
}

void TA_Zwischenliste::breitenAnpassen() { gridli->passeBreitenAn(KleinsteBreite); }

void TA_Zwischenliste::done(int ergebnis) {
  if (m_laeuft) return;
  EinstellungenZahl[54] = kon->isChecked() ? 1 : 0;
  Formular::done(ergebnis);
  gridli->setDaten({});
}

Ausgabeliste TA_Zwischenliste::liste() const {
  return Ausgabeliste(gridli->daten(), m_ueberschriften, gridli->ordnung());
}

bool TA_Zwischenliste::istLeer() {
  if (gridli->zeilen() > 0) return false;
  Meldungen::Hinweis("Es sind keine Daten in der Liste.", this);
  return true;
}

void TA_Zwischenliste::laufen(const std::function<void(const Fortschritt&)>& arbeit) {
  const Ereignis::Sanduhr sanduhr;
  const bool lang = qint64(gridli->zeilen()) * gridli->spalten() >= LangeListe;
  if (!lang) {
    arbeit({});
    return;
  }
  // The window goes on painting; keys and mouse wait until the run has ended.
  m_laeuft = true;
  meter->setRange(0, gridli->zeilen());
  meter->setValue(0);
  meter->show();
  const auto ende = qScopeGuard([this] {
    meter->hide();
    m_laeuft = false;
  });
  QElapsedTimer uhr;
  uhr.start();
  arbeit([&](int fertig, int) {
    if (uhr.elapsed() < ZwischenbildMs) return;
    meter->setValue(fertig);
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    uhr.restart();
  });
}

void TA_Zwischenliste::textAuswertung() {
  if (istLeer()) return;
  AusgabeDatei = Textliste::datei();
  laufen([this](const Fortschritt& fortschritt) {
    Textliste::schreiben(AusgabeDatei, liste(), listenkopf(), Textliste::trennzeichen(),
                         fortschritt);
  });
  TA_Textausgabe::oeffnen(this);
}

void TA_Zwischenliste::excelAuswertung() {
  if (istLeer()) return;
  const QString datei = Excelausgabe::datei();
  laufen([&](const Fortschritt& fortschritt) {
    Excelausgabe::schreiben(datei, liste(), listenkopf(), fortschritt);
  });
  if (Oeffnen::datei(datei)) return;
  Meldungen::Hinweis("Excel konnte nicht geöffnet werden!", this);
  FormModus = "xyz";
}

// Both buttons mean the one browser that the system has for web pages.
void TA_Zwischenliste::explorerAuswertung() {
  if (istLeer()) return;
  QString seite;
  laufen([&](const Fortschritt& fortschritt) {
    seite = Webbericht::schreiben(AppPfad, liste(), Webbericht::vorgaben(), fortschritt);
  });
  if (Oeffnen::datei(seite)) return;
  Meldungen::Hinweis(QString("Der Browser konnte nicht geöffnet werden! Die Liste steht in der "
                             "Datei %1.")
                         .arg(QDir::toNativeSeparators(seite)),
                     this);
}

void zwischenlisteZeigen(QWidget* oeffner, const Daten& daten, const QStringList& ueberschriften) {
  {
    const Ereignis::Sanduhr sanduhr;
    Uebergabe::schreiben(Uebergabe::datei(), Ausgabeliste(daten, ueberschriften));
  }
  TA_Zwischenliste(oeffner).zeigen();
}

namespace {

// Columns whose texts the grid makes itself are handed on as those texts.
Ausgabeliste ausGrid(const Grid& grid) {
  const Daten daten = grid.daten();
  QStringList ueberschriften;
  bool gemacht = false;
  for (int i = 0; i < grid.spalten(); ++i) {
    ueberschriften += grid.ueberschrift(i);
    gemacht = gemacht || grid.hatAnzeige(i);
  }
  if (!gemacht) return Ausgabeliste(daten, ueberschriften, grid.ordnung());
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
  return Ausgabeliste(bauer.fertig(), ueberschriften);
}

}  // namespace

void zwischenlisteZeigen(QWidget* oeffner, const Grid& grid) {
  {
    const Ereignis::Sanduhr sanduhr;
    Uebergabe::schreiben(Uebergabe::datei(), ausGrid(grid));
  }
  TA_Zwischenliste(oeffner).zeigen();
}
