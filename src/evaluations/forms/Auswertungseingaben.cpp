#include "evaluations/forms/Auswertungseingaben.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QEvent>
#include <QFocusEvent>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <algorithm>

#include "data/helpers.h"
#include "evaluations/forms/Langknopf.h"
#include "evaluations/forms/Merkliste.h"
#include "platform/controls/Bauteile.h"
#include "platform/controls/Eingabefeld.h"
#include "platform/controls/Ereignis.h"
#include "platform/controls/Formular.h"
#include "platform/controls/Gestaltung.h"

using Auswertung::Art;
using Auswertung::Eingabe;
using Auswertung::Eingaben;
using Auswertung::Gruppe;
using Auswertung::Posten;
using Bauteile::benannt;

namespace {

const QString Völkerwahl = QStringLiteral("optitieraus");
constexpr int AktuellesVolk = 4;

// A caption that the user typed shows its ampersands.
QString wörtlich(QString text) { return text.replace(u'&', QStringLiteral("&&")); }
// A caption as it is read out.
QString gesprochen(QString titel) { return titel.remove(u'&'); }

bool istFeld(Art art) {
  return art == Art::Text || art == Art::Wahltext || art == Art::Betrag || art == Art::Ganzzahl ||
         art == Art::Datum || art == Art::Jahr;
}

bool istOffeneListe(Art art) {
  return art == Art::Liste || art == Art::Merkliste || art == Art::Nebenliste;
}

Eingabefeld::Beschreibung feldbeschreibung(const Eingabe& e) {
  constexpr qint64 GrößtesJahr = 9999;
  constexpr int Betragslänge = 12;
  Eingabefeld::Beschreibung b;
  b.einheit = e.einheit;
  b.maxLänge = e.maxLänge;
  if (e.art == Art::Wahltext) b.art = Eingabefeld::Art::Auswahl;
  if (e.art == Art::Datum) b.art = Eingabefeld::Art::Datum;
  if (e.art == Art::Ganzzahl || e.art == Art::Jahr) {
    b.art = Eingabefeld::Art::Ganzzahl;
    b.bis = e.art == Art::Jahr ? GrößtesJahr : e.bis;
  }
  if (e.art == Art::Betrag) {
    b.art = Eingabefeld::Art::Dezimal;
    b.nachkommastellen = 2;
    b.maxLänge = Betragslänge;
    b.einheit = QStringLiteral("€");
  }
  return b;
}

void färben(QWidget* feld) {
  QPalette farben = feld->palette();
  const bool dunkel = Gestaltung::istDunkel(farben);
  farben.setColor(QPalette::Base, dunkel ? QColor(38, 66, 38) : QColor(224, 242, 220));
  feld->setPalette(farben);
}

QString titelVon(const Eingabe& e, const QString& gruppe) {
  return e.titel.isEmpty() ? gruppe : e.titel;
}

QStringList schlüssel(const QList<Posten>& posten) {
  QStringList alle;
  for (const Posten& p : posten) alle += p.schlüssel;
  return alle;
}

QStringList titel(const QList<Posten>& posten) {
  QStringList alle;
  for (const Posten& p : posten) alle += p.titel;
  return alle;
}

}  // namespace

// Where the next input of a group goes: a caption on the left, an input on the right; check boxes
// and buttons over the whole width, several side by side.
struct Auswertungseingaben::Reihe {
  QGridLayout* raster = nullptr;
  QHBoxLayout* letzte = nullptr;  // the row of the input before
  int zeile = 0;
  int inZeile = 0;  // check boxes in it so far
  QGridLayout* nebeneinander = nullptr;

  static constexpr int Breite = 2;
  static constexpr int Eng = 2;  // points between check boxes

  void ganz(QWidget* control, int anteil = 0) {
    schließen();
    raster->addWidget(control, zeile, 0, 1, Breite);
    raster->setRowStretch(zeile++, anteil);
  }
  QHBoxLayout* neueReihe(QWidget* schild) {
    schließen();
    letzte = new QHBoxLayout;
    if (schild != nullptr) raster->addWidget(schild, zeile, 0);
    raster->addLayout(letzte, zeile++, schild != nullptr ? 1 : 0, 1,
                      schild != nullptr ? 1 : Breite);
    return letzte;
  }
  // Right of what filled the rows before, caption and list.
  void daneben(QWidget* schild, QWidget* liste) {
    raster->addWidget(schild, zeile - 2, Breite);
    raster->addWidget(liste, zeile - 1, Breite);
    raster->setColumnStretch(Breite, 1);
  }
  void einer(QWidget* control, int anzahl) {
    if (nebeneinander == nullptr) {
      nebeneinander = new QGridLayout;
      if (qobject_cast<QCheckBox*>(control) != nullptr) {
        nebeneinander->setVerticalSpacing(Eng);
        nebeneinander->setColumnStretch(anzahl, 1);
      }
      raster->addLayout(nebeneinander, zeile++, 0, 1, Breite);
      inZeile = 0;
    }
    nebeneinander->addWidget(control, inZeile / anzahl, inZeile % anzahl);
    ++inZeile;
  }
  // Right of the last check box.
  void nebenEinem(QWidget* control) {
    const int spalte = nebeneinander->columnCount() - 1;
    nebeneinander->addWidget(control, nebeneinander->rowCount() - 1, spalte, Qt::AlignLeft);
  }
  void schließen() { nebeneinander = nullptr; }
};

// ---- building ----

Auswertungseingaben::Auswertungseingaben(const QList<Gruppe>& gruppen, QWidget* formular,
                                         Änderung geändert, Befehlsruf befehl)
    : m_gruppen(gruppen),
      m_formular(formular),
      m_geändert(std::move(geändert)),
      m_befehl(std::move(befehl)) {
  auto* spalten = new QHBoxLayout(this);
  spalten->setContentsMargins(0, 0, 0, 0);
  int letzte = 0;
  for (const Gruppe& g : m_gruppen) letzte = std::max(letzte, g.spalte);
  for (int i = 0; i <= letzte; ++i) {
    auto* spalte = new QVBoxLayout;
    bool dehnbar = false;
    for (const Gruppe& g : m_gruppen) {
      if (g.spalte != i) continue;
      const bool liste = std::ranges::any_of(g.eingaben, [](const Eingabe& e) {
        return istOffeneListe(e.art) || e.art == Art::Lesetext;
      });
      spalte->addWidget(gruppeBauen(g), liste ? 1 : 0);
      dehnbar = dehnbar || liste;
    }
    if (!dehnbar) spalte->addStretch(1);
    spalten->addLayout(spalte, dehnbar ? 1 : 0);
  }
}

QWidget* Auswertungseingaben::gruppeBauen(const Gruppe& gruppe) {
  QWidget* rahmen = gruppe.titel.isEmpty() ? new QWidget : new QGroupBox(gruppe.titel);
  Reihe reihe;
  reihe.raster = new QGridLayout(rahmen);
  if (gruppe.titel.isEmpty()) reihe.raster->setContentsMargins(0, 0, 0, 0);
  reihe.raster->setColumnStretch(1, 1);
  for (const Eingabe& e : gruppe.eingaben) eingabeBauen(e, gruppe, reihe);
  if (gruppe.alle == Gruppe::Alle::Knöpfe) alleKeineBauen(reihe);
  return rahmen;
}

void Auswertungseingaben::eingabeBauen(const Eingabe& e, const Gruppe& gruppe, Reihe& reihe) {
  if (e.art == Art::Optionen) return optionenBauen(e, reihe);
  QWidget* control = benannt(controlBauen(e), e.name);
  control->setToolTip(e.hinweis);
  control->setAccessibleName(
      gesprochen(e.gesprochen.isEmpty() ? titelVon(e, gruppe.titel) : e.gesprochen));
  m_controls[e.name] = control;
  if (e.art != Art::Anzeige) m_tabfolge += control;
  if (e.fokusWählt) {
    m_fokusWählt[control] = *e.fokusWählt;
    control->installEventFilter(this);
  }
  const bool beschriftet = !e.titel.isEmpty() && (istFeld(e.art) || e.art == Art::Auswahl);
  if (e.art == Art::Haken || e.art == Art::Befehl)
    return reihe.einer(control, gruppe.nebeneinander);
  if (e.daneben && reihe.nebeneinander != nullptr) return reihe.nebenEinem(control);
  if (e.art == Art::Nebenliste)
    return reihe.daneben(Formular::beschriften(e.titel, control), control);
  if (istOffeneListe(e.art) || e.art == Art::Lesetext) {
    if (!e.titel.isEmpty() && e.titel != gruppe.titel) {
      QLabel* schild = Formular::beschriften(e.titel, control);
      schild->setWordWrap(true);  // some tell what is to be done
      reihe.ganz(schild);
    }
    return reihe.ganz(control, 1);
  }
  QWidget* schild = beschriftet ? Formular::beschriften(e.titel, control) : nullptr;
  QBoxLayout* ziel = nullptr;
  if (e.fokusWählt)
    ziel = m_optionsreihe.value(Eingaben::glied(e.fokusWählt->first, e.fokusWählt->second));
  if (e.daneben && ziel == nullptr) ziel = reihe.letzte;
  if (ziel == nullptr) {
    ziel = reihe.neueReihe(schild);
    ziel->addWidget(control);
    ziel->addStretch(1);
    return;
  }
  // In front of the stretch at the row's end.
  if (schild != nullptr) ziel->insertWidget(ziel->count() - 1, schild);
  ziel->insertWidget(ziel->count() - 1, control);
}

void Auswertungseingaben::optionenBauen(const Eingabe& e, Reihe& reihe) {
  auto* gruppe = new QButtonGroup(this);
  for (int i = 0; i < e.texte.size(); ++i) {
    const QString name = Eingaben::glied(e.name, i);
    auto* option = benannt(new QRadioButton(e.texte[i]), name);
    option->setAccessibleName(gesprochen(e.texte[i]));
    gruppe->addButton(option, i);
    m_controls[name] = option;
    m_tabfolge += option;
    Ereignis::wenn(option, &QRadioButton::clicked, m_formular, [this, e] { gemeldet(e.name); });
    auto* zeile = reihe.neueReihe(nullptr);
    zeile->addWidget(option);
    zeile->addStretch(1);
    m_optionsreihe[name] = zeile;
  }
  if (e.name == Völkerwahl) nächsterBauen(reihe);
}

QWidget* Auswertungseingaben::controlBauen(const Eingabe& e) {
  switch (e.art) {
    case Art::Haken: {
      auto* box = new QCheckBox(e.titel);
      Ereignis::wenn(box, &QCheckBox::clicked, m_formular, [this, e] { gemeldet(e.name); });
      return box;
    }
    case Art::Auswahl: {
      auto* box = new QComboBox;
      box->setSizeAdjustPolicy(QComboBox::AdjustToContents);
      Ereignis::wenn(box, &QComboBox::currentIndexChanged, m_formular,
                     [this, e] { gemeldet(e.name); });
      return box;
    }
    case Art::Liste:
    case Art::Merkliste:
    case Art::Nebenliste:
      return listeBauen(e);
    case Art::Anzeige: {
      auto* schild = new QLabel;
      schild->setTextInteractionFlags(Qt::TextSelectableByMouse);
      return schild;
    }
    case Art::Lesetext: {
      auto* text = new QPlainTextEdit(e.texte.join(u'\n'));
      text->setReadOnly(true);
      text->setTabChangesFocus(true);
      text->setMinimumHeight(4 * text->fontMetrics().height());
      return text;
    }
    case Art::Befehl: {
      constexpr int Lang = 60;
      QPushButton* knopf = e.titel.size() > Lang ? new Langknopf(e.titel)
                                                 : Bauteile::knopfOhneEnter(e.titel, e.name);
      Ereignis::wenn(knopf, &QPushButton::clicked, m_formular, [this, e] { m_befehl(e.name); });
      return knopf;
    }
    default:
      return feldBauen(e);
  }
}

QWidget* Auswertungseingaben::feldBauen(const Eingabe& e) {
  auto* feld = new Eingabefeld;
  feld->einrichten(feldbeschreibung(e));
  if (e.grün) färben(feld);
  Ereignis::wenn(feld, &Eingabefeld::verlassen, m_formular, [this, e, feld] {
    if (e.art == Art::Jahr) feld->setInhalt(JahrErgaenzen(feld->inhalt()));
    gemeldet(e.name);
  });
  Ereignis::wenn(feld, &Eingabefeld::ausListeGenommen, m_formular, [this, e] { gemeldet(e.name); });
  return feld;
}

QWidget* Auswertungseingaben::listeBauen(const Eingabe& e) {
  auto* liste = new Merkliste(
      e.name, e.art == Art::Merkliste ? Merkliste::Wahl::Viele : Merkliste::Wahl::Eine);
  if (e.art == Art::Nebenliste) {
    liste->führeNeben(static_cast<Merkliste*>(m_controls.value(e.postenVon)));
    return liste;
  }
  Ereignis::wenn(liste, &QListWidget::itemSelectionChanged, m_formular,
                 [this, e] { gemeldet(e.name); });
  if (!e.doppelklick.isEmpty())
    Ereignis::wenn(liste, &QListWidget::itemActivated, m_formular,
                   [this, e] { m_befehl(e.doppelklick); });
  return liste;
}

void Auswertungseingaben::nächsterBauen(Reihe& reihe) {
  const QStringList texte{QStringLiteral("&Vorheriges"), QStringLiteral("&Nächstes")};
  QList<QWidget*> knöpfe;
  for (int i : {0, 1}) {
    const QString name = Eingaben::glied(QStringLiteral("nächster"), i);
    auto* knopf = Bauteile::knopfOhneEnter(texte[i], name);
    knopf->setToolTip(i == 0 ? QStringLiteral("Das vorige Volk der Völkerliste nehmen")
                             : QStringLiteral("Das nächste Volk der Völkerliste nehmen"));
    QSizePolicy platz = knopf->sizePolicy();
    platz.setRetainSizeWhenHidden(true);
    knopf->setSizePolicy(platz);
    Ereignis::wenn(knopf, &QPushButton::clicked, m_formular, [this, name] { m_befehl(name); });
    knöpfe += knopf;
    m_nächster += knopf;
    m_tabfolge += knopf;
  }
  reihe.ganz(Bauteile::leiste(knöpfe));
}

void Auswertungseingaben::alleKeineBauen(Reihe& reihe) {
  const QStringList texte{QStringLiteral("&Alle"), QStringLiteral("&Keine")};
  QList<QWidget*> knöpfe;
  for (int i : {0, 1}) {
    auto* knopf = Bauteile::knopfOhneEnter(texte[i], Eingaben::glied("alletier", i));
    Ereignis::wenn(knopf, &QPushButton::clicked, m_formular, [this, i] { alleSetzen(i == 0); });
    knöpfe += knopf;
    m_tabfolge += knopf;
  }
  reihe.ganz(Bauteile::leiste(knöpfe));
}

// ---- what the user does ----

void Auswertungseingaben::alleSetzen(bool an) {
  for (const Gruppe& g : m_gruppen) {
    if (g.alle == Gruppe::Alle::Nein) continue;
    for (const Eingabe& e : g.eingaben) {
      if (auto* box = qobject_cast<QCheckBox*>(m_controls.value(e.name)))
        box->setChecked(an);
      else if (auto* liste = dynamic_cast<Merkliste*>(m_controls.value(e.name)))
        an ? liste->selectAll() : liste->clearSelection();
      else
        continue;
      gemeldet(e.name);
    }
  }
}

void Auswertungseingaben::gemeldet(const QString& name) {
  if (!m_zeigt && m_geändert) m_geändert(name);
}

bool Auswertungseingaben::eventFilter(QObject* objekt, QEvent* event) {
  // Not when the window comes to the front again.
  if (event->type() == QEvent::FocusIn &&
      static_cast<QFocusEvent*>(event)->reason() != Qt::ActiveWindowFocusReason) {
    const auto wahl = m_fokusWählt.constFind(static_cast<QWidget*>(objekt));
    if (wahl != m_fokusWählt.constEnd()) {
      auto* option =
          static_cast<QRadioButton*>(m_controls.value(Eingaben::glied(wahl->first, wahl->second)));
      if (option != nullptr && !option->isChecked()) {
        option->setChecked(true);
        gemeldet(wahl->first);
      }
    }
  }
  return QWidget::eventFilter(objekt, event);
}

void Auswertungseingaben::setVolk(bool gibtEs, const QString& beschriftung) {
  auto* option =
      static_cast<QRadioButton*>(m_controls.value(Eingaben::glied(Völkerwahl, AktuellesVolk)));
  if (option == nullptr) return;
  if (!gibtEs && option->isChecked())
    static_cast<QRadioButton*>(m_controls.value(Eingaben::glied(Völkerwahl, 0)))->setChecked(true);
  option->setEnabled(gibtEs);
  option->setText(wörtlich(beschriftung));
  option->setAccessibleName(beschriftung);
  for (QPushButton* knopf : m_nächster) knopf->setVisible(option->isChecked());
}

// ---- between controls and values ----

void Auswertungseingaben::jede(const std::function<void(const Eingabe&)>& aktion) const {
  for (const Gruppe& g : m_gruppen)
    for (const Eingabe& e : g.eingaben) aktion(e);
}

void Auswertungseingaben::listenFüllen(Database& db, Eingaben& eingaben, const QString& nurVon) {
  jede([&](const Eingabe& e) {
    if (!nurVon.isEmpty() && (e.postenVon != nurVon || e.art == Art::Nebenliste)) return;
    if (e.art == Art::Nebenliste) {
      const QStringList schlüssel = eingaben.angebot(e.postenVon);
      return static_cast<Merkliste*>(m_controls.value(e.name))->setPosten(schlüssel, schlüssel);
    }
    if (!e.posten) return;
    const QList<Posten> posten = e.posten(db, eingaben);
    const QStringList texte = titel(posten);
    eingaben.setAngebot(e.name, schlüssel(posten));
    QWidget* control = m_controls.value(e.name);
    m_zeigt = true;
    if (auto* liste = dynamic_cast<Merkliste*>(control)) {
      liste->setPosten(eingaben.angebot(e.name), texte);
      if (e.art == Art::Merkliste) liste->setGewählt(eingaben.gewählt(e.name));
    } else if (auto* box = qobject_cast<QComboBox*>(control)) {
      box->clear();
      box->addItems(texte);
    } else if (auto* feld = qobject_cast<Eingabefeld*>(control)) {
      if (e.art == Art::Wahltext) {
        Eingabefeld::Beschreibung b = feldbeschreibung(e);
        b.auswahl = texte;
        feld->einrichten(b);
      } else {
        feld->setListe(texte);
      }
    }
    m_zeigt = false;
  });
}

void Auswertungseingaben::leseEingabe(const Eingabe& e, Eingaben& eingaben) const {
  if (e.art == Art::Nebenliste) return;
  QWidget* control = m_controls.value(e.name);
  if (e.art == Art::Optionen) {
    int wahl = -1;
    for (int i = 0; i < e.texte.size(); ++i)
      if (static_cast<QRadioButton*>(m_controls.value(Eingaben::glied(e.name, i)))->isChecked())
        wahl = i;
    eingaben.setWahl(e.name, wahl);
  } else if (auto* box = qobject_cast<QCheckBox*>(control)) {
    eingaben.setAn(e.name, box->isChecked());
  } else if (auto* klappliste = qobject_cast<QComboBox*>(control)) {
    eingaben.setWahl(e.name, klappliste->currentIndex());
    eingaben.setText(e.name, klappliste->currentText());
  } else if (auto* liste = dynamic_cast<Merkliste*>(control)) {
    eingaben.setGewählt(e.name, liste->gewählt());
    eingaben.setText(e.name, liste->aktueller());
    if (e.art == Art::Liste) eingaben.setWahl(e.name, liste->currentRow());
  } else if (auto* feld = qobject_cast<Eingabefeld*>(control)) {
    eingaben.setText(e.name, feld->inhalt());
  }
}

void Auswertungseingaben::lesen(Eingaben& eingaben) const {
  jede([&](const Eingabe& e) { leseEingabe(e, eingaben); });
}

// Also none of them, which a group of options lets nobody choose.
void Auswertungseingaben::zeigeOption(const Eingabe& e, int wahl) {
  for (int i = 0; i < e.texte.size(); ++i) {
    auto* option = static_cast<QRadioButton*>(m_controls.value(Eingaben::glied(e.name, i)));
    option->group()->setExclusive(false);
    option->setChecked(i == wahl);
    option->group()->setExclusive(true);
  }
}

void Auswertungseingaben::zeigeEingabe(const Eingabe& e, const Eingaben& eingaben) {
  if (e.art == Art::Nebenliste) return;
  QWidget* control = m_controls.value(e.name);
  if (e.art == Art::Optionen) {
    zeigeOption(e, eingaben.wahl(e.name));
  } else if (auto* box = qobject_cast<QCheckBox*>(control)) {
    box->setChecked(eingaben.an(e.name));
  } else if (auto* klappliste = qobject_cast<QComboBox*>(control)) {
    klappliste->setCurrentIndex(eingaben.wahl(e.name));
  } else if (auto* liste = dynamic_cast<Merkliste*>(control)) {
    if (e.art == Art::Liste)
      liste->setCurrentRow(eingaben.wahl(e.name));
    else
      liste->setGewählt(eingaben.gewählt(e.name));
  } else if (auto* feld = qobject_cast<Eingabefeld*>(control)) {
    if (feld->inhalt() != eingaben.text(e.name)) feld->setInhalt(eingaben.text(e.name));
  } else if (auto* schild = qobject_cast<QLabel*>(control)) {
    schild->setText(eingaben.text(e.name));
  }
}

void Auswertungseingaben::zeigen(const Eingaben& eingaben) {
  m_zeigt = true;
  jede([&](const Eingabe& e) { zeigeEingabe(e, eingaben); });
  m_zeigt = false;
}
