#include "core/mainform/forms/TA_TOVA.h"

#include <QApplication>
#include <QButtonGroup>
#include <QCheckBox>
#include <QFontDatabase>
#include <QHBoxLayout>
#include <QLabel>
#include <QMenu>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSplitter>
#include <QToolButton>

#include "core/globals.h"
#include "core/mainform/Liste.h"
#include "core/mainform/Start.h"
#include "core/mainform/forms/Bildfeld.h"
#include "core/mainform/forms/Symbol.h"
#include "platform/controls/Bauteile.h"
#include "platform/controls/Ereignis.h"
#include "platform/controls/Grid.h"

using namespace TZ_Variablen;

using Bauteile::benannt;

namespace {

QToolButton* symbolknopf(const QString& name, const QString& symbolName, const QString& hinweis,
                         QWidget* eltern) {
  auto* knopf = benannt(new QToolButton(eltern), name);
  knopf->setIcon(symbol(symbolName));
  knopf->setToolTip(hinweis);
  knopf->setAccessibleName(hinweis);
  knopf->setFocusPolicy(Qt::TabFocus);
  const int seite = eltern->fontMetrics().height() * 5 / 4;
  knopf->setIconSize(QSize(seite, seite));
  return knopf;
}

// A fixed-width font in the size of the other texts.
QFont festeSchrift(const QFont& vorlage) {
  QFont schrift = QFontDatabase::systemFont(QFontDatabase::FixedFont);
  schrift.setStyleHint(QFont::Monospace);
  schrift.setFixedPitch(true);
  schrift.setPointSizeF(vorlage.pointSizeF());
  return schrift;
}

}  // namespace

TA_TOVA::TA_TOVA() {
  setObjectName(QStringLiteral("TA_TOVA"));
  setWindowTitle(Start::fenstertitel());
  // Of all windows: the boxes at the start stand alone.
  QApplication::setWindowIcon(symbol(QStringLiteral("tova")));
  menuesBauen();
  leisteBauen();
  inhaltBauen();
  popupBauen();
  verbinden();
  befehleAnpassen();
  setHauptliste(this);
}

TA_TOVA::~TA_TOVA() {
  hide();                      // as long as the list may still ask this object for its first column
  datali->blockSignals(true);  // it goes after this object has lost its members
  if (hauptliste() == this) setHauptliste(nullptr);
}

void TA_TOVA::inhaltBauen() {
  auto* mitte = new QWidget(this);
  teiler = benannt(new QSplitter(Qt::Horizontal, mitte), QStringLiteral("teiler"));
  teiler->setChildrenCollapsible(false);
  teiler->setHandleWidth(9);
  auto* oben = new QHBoxLayout;
  filterBauen(oben);
  oben->addStretch();
  knoepfeBauen(oben);
  teiler->addWidget(listeBauen());
  teiler->addWidget(panelBauen());
  auto* seite = new QVBoxLayout(mitte);
  seite->addLayout(oben);
  seite->addWidget(teiler, 1);
  setCentralWidget(mitte);
}

void TA_TOVA::filterBauen(QHBoxLayout* zeile) {
  filter = new QButtonGroup(this);
  const QStringList texte = filterbeschriftungen({});
  for (int i = 0; i < 3; ++i) {
    auto* knopf =
        benannt(new QRadioButton(texte[i], this), QStringLiteral("optiverkauft_%1").arg(i));
    filter->addButton(knopf, i);
    zeile->addWidget(knopf);
    optiverkauft[static_cast<size_t>(i)] = knopf;
  }
  optiverkauft[0]->setChecked(true);
}

void TA_TOVA::knoepfeBauen(QHBoxLayout* zeile) {
  cmdok =
      benannt(new QPushButton(QStringLiteral("Volk-Info anzeigen"), this), QStringLiteral("cmdok"));
  abwaerts[0] = symbolknopf(QStringLiteral("abwaerts_0"), QStringLiteral("pfeil_runter"),
                            QStringLiteral("Nächstes Tier"), this);
  abwaerts[1] = symbolknopf(QStringLiteral("abwaerts_1"), QStringLiteral("pfeil_hoch"),
                            QStringLiteral("Vorheriges Tier"), this);
  comdrucken = symbolknopf(QStringLiteral("comdrucken"), QStringLiteral("drucken"),
                           QStringLiteral("Tierdaten drucken"), this);
  linksrechts = symbolknopf(QStringLiteral("linksrechts"), QStringLiteral("breite"),
                            QStringLiteral("Textfeldbreite ändern"), this);
  cmdok->setMinimumWidth(cmdok->sizeHint().width() + 2 * fontMetrics().averageCharWidth());
  zeile->addWidget(cmdok);
  for (QToolButton* knopf : {abwaerts[0], abwaerts[1], comdrucken, linksrechts})
    zeile->addWidget(knopf);
}

QWidget* TA_TOVA::listeBauen() {
  datali = benannt(new Grid(teiler), QStringLiteral("datali"));
  datali->setAccessibleName(QStringLiteral("Völkerliste"));
  datali->setLayoutSchluessel(VolklisteLayout);
  datali->setErsteSpalte([this](int zeile) {
    return ersteSpalte(zeile, datali->zelle(zeile, QStringLiteral("Volknr")));
  });
  leerhinweis = benannt(new QLabel(datali->viewport()), QStringLiteral("leerhinweis"));
  leerhinweis->setAlignment(Qt::AlignCenter);
  leerhinweis->setWordWrap(true);
  leerhinweis->setForegroundRole(QPalette::PlaceholderText);
  leerhinweis->setAttribute(Qt::WA_TransparentForMouseEvents);
  auto* mitte = new QVBoxLayout(datali->viewport());
  mitte->addWidget(leerhinweis);
  return datali;
}

QWidget* TA_TOVA::panelBauen() {
  auto* seite = new QWidget(teiler);
  auto* spalte = new QVBoxLayout(seite);
  spalte->setContentsMargins(0, 0, 0, 0);
  kon = benannt(new QCheckBox(QStringLiteral("Nur akt. Jahr"), seite), QStringLiteral("kon"));
  kon1 = benannt(new QCheckBox(QStringLiteral("Grafik zeigen"), seite), QStringLiteral("kon1"));
  auto* schalter = new QHBoxLayout;
  schalter->addWidget(kon);
  schalter->addWidget(kon1);
  schalter->addStretch();
  spalte->addLayout(schalter);
  bild = new Bildfeld(seite);
  bild->hide();
  spalte->addWidget(bild);

  text1 = benannt(new QPlainTextEdit(seite), QStringLiteral("text1"));
  text1->setReadOnly(true);
  text1->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  text1->setTabChangesFocus(true);
  text1->setLineWrapMode(QPlainTextEdit::NoWrap);
  text1->setFont(festeSchrift(font()));
  text1->setMinimumHeight(8 * text1->fontMetrics().height());  // beside the picture
  text1->setAccessibleName(QStringLiteral("Volk-Info"));
  text1->setPlaceholderText(
      QStringLiteral("Wählen Sie in der Liste ein Volk\nund dann „Volk-Info anzeigen“,\n"
                     "oder klicken Sie es doppelt an."));
  spalte->addWidget(text1, 1);
  return seite;
}

void TA_TOVA::verbinden() {
  Ereignis::wenn(datali, &Grid::zeileGewechselt, this, [this] { zeileUebernehmen(); });
  Ereignis::wenn(datali, &Grid::zeileDoppelgeklickt, this, [this] { VolkAnzeigen(); });
  Ereignis::wenn(datali, &Grid::vomBenutzerSortiert, this, [](int spalte, Qt::SortOrder richtung) {
    sortierungMerken({spalte, richtung});
  });
  Ereignis::wenn(cmdok, &QPushButton::clicked, this, [this] { VolkAnzeigen(); });
  Ereignis::wenn(abwaerts[0], &QToolButton::clicked, this, [this] { wechseln(1); });
  Ereignis::wenn(abwaerts[1], &QToolButton::clicked, this, [this] { wechseln(0); });
  Ereignis::wenn(comdrucken, &QToolButton::clicked, this, [this] { panelListen(); });
  Ereignis::wenn(linksrechts, &QToolButton::clicked, this, [this] { breitenUmschalten(); });
  Ereignis::wenn(kon, &QCheckBox::toggled, this, [this] { VolkAnzeigen(); });
  Ereignis::wenn(kon1, &QCheckBox::toggled, this, [this] { grafikUmschalten(); });
  for (QRadioButton* knopf : optiverkauft)
    Ereignis::wenn(knopf, &QRadioButton::clicked, this, [this] { datenvölkerlesen(); });
}

// Slot 58 gives the panel the wider part. A drag of the divider holds until the next change.
void TA_TOVA::breitenTeilen() {
  const bool panelBreit = EinstellungenZahl[58] != 0;
  const int drittel = std::max(teiler->width(), 300) / 3;
  teiler->setStretchFactor(0, panelBreit ? 1 : 2);
  teiler->setStretchFactor(1, panelBreit ? 2 : 1);
  teiler->setSizes(panelBreit ? QList<int>{drittel, 2 * drittel}
                              : QList<int>{2 * drittel, drittel});
}
