#include "mainform/forms/TA_TOVA.h"

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
#include <QTimer>
#include <QToolButton>

#include "core/globals.h"
#include "mainform/Start.h"
#include "mainform/Volkliste.h"
#include "mainform/forms/Bildfeld.h"
#include "mainform/forms/Symbol.h"
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
  menüsBauen();
  leisteBauen();
  inhaltBauen();
  popupBauen();
  verbinden();
  befehleAnpassen();
  setHauptliste(this);

  m_nachholen = new QTimer(this);
  m_nachholen->setObjectName(QStringLiteral("nachholen"));
  m_nachholen->setSingleShot(true);
  m_nachholen->setInterval(15000);
  Ereignis::wenn(m_nachholen, &QTimer::timeout, this, [this] { zusammenfassungenNachholen(); });
}

TA_TOVA::~TA_TOVA() {
  hide();  // as long as the list may still ask this object for its first column
  m_datali->blockSignals(true);  // it goes after this object has lost its members
  if (hauptliste() == this) setHauptliste(nullptr);
}

void TA_TOVA::inhaltBauen() {
  auto* mitte = new QWidget(this);
  m_teiler = benannt(new QSplitter(Qt::Horizontal, mitte), QStringLiteral("teiler"));
  m_teiler->setChildrenCollapsible(false);
  m_teiler->setHandleWidth(9);
  auto* oben = new QHBoxLayout;
  filterBauen(oben);
  oben->addStretch();
  knöpfeBauen(oben);
  m_teiler->addWidget(listeBauen());
  m_teiler->addWidget(panelBauen());
  auto* seite = new QVBoxLayout(mitte);
  seite->addLayout(oben);
  seite->addWidget(m_teiler, 1);
  setCentralWidget(mitte);
}

void TA_TOVA::filterBauen(QHBoxLayout* zeile) {
  m_filter = new QButtonGroup(this);
  const QStringList texte = filterbeschriftungen({});
  for (int i = 0; i < 3; ++i) {
    auto* knopf =
        benannt(new QRadioButton(texte[i], this), QStringLiteral("optiverkauft_%1").arg(i));
    m_filter->addButton(knopf, i);
    zeile->addWidget(knopf);
    m_optiverkauft[static_cast<size_t>(i)] = knopf;
  }
  m_optiverkauft[0]->setChecked(true);
}

void TA_TOVA::knöpfeBauen(QHBoxLayout* zeile) {
  m_cmdok =
      benannt(new QPushButton(QStringLiteral("Volk-Info anzeigen"), this), QStringLiteral("cmdok"));
  m_abwaerts[0] = symbolknopf(QStringLiteral("abwaerts_0"), QStringLiteral("pfeil_runter"),
                              QStringLiteral("Nächstes Tier"), this);
  m_abwaerts[1] = symbolknopf(QStringLiteral("abwaerts_1"), QStringLiteral("pfeil_hoch"),
                              QStringLiteral("Vorheriges Tier"), this);
  m_comdrucken = symbolknopf(QStringLiteral("comdrucken"), QStringLiteral("drucken"),
                             QStringLiteral("Tierdaten drucken"), this);
  m_linksrechts = symbolknopf(QStringLiteral("linksrechts"), QStringLiteral("breite"),
                              QStringLiteral("Textfeldbreite ändern"), this);
  m_cmdok->setMinimumWidth(m_cmdok->sizeHint().width() + 2 * fontMetrics().averageCharWidth());
  zeile->addWidget(m_cmdok);
  for (QToolButton* knopf : {m_abwaerts[0], m_abwaerts[1], m_comdrucken, m_linksrechts})
    zeile->addWidget(knopf);
}

QWidget* TA_TOVA::listeBauen() {
  m_datali = benannt(new Grid(m_teiler), QStringLiteral("datali"));
  m_datali->setAccessibleName(QStringLiteral("Völkerliste"));
  m_datali->setLayoutSchlüssel(VolklisteLayout);
  m_datali->setErsteSpalte([this](int zeile) {
    return ersteSpalte(zeile, m_datali->zelle(zeile, QStringLiteral("Volknr")));
  });
  m_leerhinweis = benannt(new QLabel(m_datali->viewport()), QStringLiteral("leerhinweis"));
  m_leerhinweis->setAlignment(Qt::AlignCenter);
  m_leerhinweis->setWordWrap(true);
  m_leerhinweis->setForegroundRole(QPalette::PlaceholderText);
  m_leerhinweis->setAttribute(Qt::WA_TransparentForMouseEvents);
  auto* mitte = new QVBoxLayout(m_datali->viewport());
  mitte->addWidget(m_leerhinweis);
  return m_datali;
}

QWidget* TA_TOVA::panelBauen() {
  auto* seite = new QWidget(m_teiler);
  auto* spalte = new QVBoxLayout(seite);
  spalte->setContentsMargins(0, 0, 0, 0);
  m_kon = benannt(new QCheckBox(QStringLiteral("Nur akt. Jahr"), seite), QStringLiteral("kon"));
  m_kon1 = benannt(new QCheckBox(QStringLiteral("Grafik zeigen"), seite), QStringLiteral("kon1"));
  auto* schalter = new QHBoxLayout;
  schalter->addWidget(m_kon);
  schalter->addWidget(m_kon1);
  schalter->addStretch();
  spalte->addLayout(schalter);
  m_bild = new Bildfeld(seite);
  m_bild->hide();
  spalte->addWidget(m_bild);

  m_text1 = benannt(new QPlainTextEdit(seite), QStringLiteral("text1"));
  m_text1->setReadOnly(true);
  m_text1->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  m_text1->setTabChangesFocus(true);
  m_text1->setLineWrapMode(QPlainTextEdit::NoWrap);
  m_text1->setFont(festeSchrift(font()));
  m_text1->setMinimumHeight(8 * m_text1->fontMetrics().height());  // beside the picture
  m_text1->setAccessibleName(QStringLiteral("Volk-Info"));
  m_text1->setPlaceholderText(
      QStringLiteral("Wählen Sie in der Liste ein Volk\nund dann „Volk-Info anzeigen“,\n"
                     "oder klicken Sie es doppelt an."));
  spalte->addWidget(m_text1, 1);
  return seite;
}

void TA_TOVA::verbinden() {
  Ereignis::wenn(m_datali, &Grid::zeileGewechselt, this, [this] { zeileÜbernehmen(); });
  Ereignis::wenn(m_datali, &Grid::zeileDoppelgeklickt, this, [this] { VolkAnzeigen(); });
  Ereignis::wenn(m_datali, &Grid::vomBenutzerSortiert, this,
                 [](int spalte, Qt::SortOrder richtung) {
                   sortierungMerken({spalte, richtung});
                 });
  Ereignis::wenn(m_cmdok, &QPushButton::clicked, this, [this] { VolkAnzeigen(); });
  Ereignis::wenn(m_abwaerts[0], &QToolButton::clicked, this, [this] { wechseln(1); });
  Ereignis::wenn(m_abwaerts[1], &QToolButton::clicked, this, [this] { wechseln(0); });
  Ereignis::wenn(m_comdrucken, &QToolButton::clicked, this, [this] { panelListen(); });
  Ereignis::wenn(m_linksrechts, &QToolButton::clicked, this, [this] { breitenUmschalten(); });
  Ereignis::wenn(m_kon, &QCheckBox::toggled, this, [this] { VolkAnzeigen(); });
  Ereignis::wenn(m_kon1, &QCheckBox::toggled, this, [this] { grafikUmschalten(); });
  for (QRadioButton* knopf : m_optiverkauft)
    Ereignis::wenn(knopf, &QRadioButton::clicked, this, [this] { datenvölkerlesen(); });
}

// Slot 58 gives the panel the wider part. A drag of the divider holds until the next change.
void TA_TOVA::breitenTeilen() {
  const bool panelBreit = EinstellungenZahl[Zahlslots.infofensterBreit] != 0;
  const int drittel = std::max(m_teiler->width(), 300) / 3;
  m_teiler->setStretchFactor(0, panelBreit ? 1 : 2);
  m_teiler->setStretchFactor(1, panelBreit ? 2 : 1);
  m_teiler->setSizes(panelBreit ? QList<int>{drittel, 2 * drittel}
                                : QList<int>{2 * drittel, drittel});
}
