#include "platform/controls/Auswahlliste.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListView>
#include <QScreen>
#include <QScrollBar>
#include <QStringListModel>
#include <QVBoxLayout>

namespace {

constexpr int MeisteZeilen = 12;
constexpr int GemesseneTexte = 300;

}  // namespace

Auswahlliste::Auswahlliste(QLineEdit* feld)
    : QFrame(feld, Qt::ToolTip | Qt::FramelessWindowHint | Qt::WindowDoesNotAcceptFocus),
      m_feld(feld),
      m_liste(new QListView(this)),
      m_modell(new QStringListModel(this)) {
  setObjectName(QStringLiteral("auswahlliste"));
  setAttribute(Qt::WA_ShowWithoutActivating);
  setFocusPolicy(Qt::NoFocus);
  setFrameShape(QFrame::Box);
  setLineWidth(1);
  auto* lage = new QVBoxLayout(this);
  lage->setContentsMargins(1, 1, 1, 1);
  lage->addWidget(m_liste);
  m_liste->setModel(m_modell);
  m_liste->setFrameShape(QFrame::NoFrame);
  m_liste->setMinimumSize(1, 1);  // two texts take two lines
  m_liste->setUniformItemSizes(true);
  m_liste->setFocusPolicy(Qt::NoFocus);
  m_liste->setEditTriggers(QAbstractItemView::NoEditTriggers);
  m_liste->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  m_liste->setTextElideMode(Qt::ElideRight);
  connect(m_liste, &QListView::clicked, this, [this](const QModelIndex& i) { nimm(i.row()); });
}

void Auswahlliste::öffnen(const QStringList& texte, const QString& aktuell) {
  int zeile = static_cast<int>(texte.indexOf(aktuell));
  if (zeile < 0 && !aktuell.isEmpty()) zeile = sucheAnfang(texte, aktuell, -1);
  zeige(texte, zeile);
}

QString Auswahlliste::ergänzen(const QStringList& texte, const QString& anfang) {
  QStringList treffer;
  if (!anfang.isEmpty())
    for (const QString& text : texte)
      if (text.startsWith(anfang, Qt::CaseInsensitive)) treffer += text;
  if (treffer.isEmpty() || (treffer.size() == 1 && treffer.first() == anfang)) {
    hide();
    return {};
  }
  // The whole text in other letters ("RAPS") is a text of its own.
  const bool einziger = treffer.size() == 1 && treffer.first().size() > anfang.size();
  zeige(treffer, einziger ? 0 : -1);
  m_vonSelbst = einziger;
  return einziger ? treffer.first() : QString();
}

bool Auswahlliste::nimmtTaste(const QKeyEvent* event) const {
  if (!isVisible()) return false;
  switch (event->key()) {
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
    case Qt::Key_Escape:
    case Qt::Key_F4:
      return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
      return m_liste->currentIndex().isValid() && !m_vonSelbst;
    default:
      return false;
  }
}

bool Auswahlliste::taste(QKeyEvent* event) {
  if (!nimmtTaste(event)) return false;
  const int zeile = m_liste->currentIndex().isValid() ? m_liste->currentIndex().row() : -1;
  const int letzte = m_modell->rowCount() - 1;
  switch (event->key()) {
    case Qt::Key_Up:
      if (event->modifiers() & Qt::AltModifier)
        hide();
      else
        setZeile(zeile < 0 ? letzte : std::max(zeile - 1, 0));
      break;
    case Qt::Key_Down:
      setZeile(std::min(zeile + 1, letzte));
      break;
    case Qt::Key_PageUp:
      setZeile(std::max(zeile - MeisteZeilen, 0));
      break;
    case Qt::Key_PageDown:
      setZeile(std::min(zeile + MeisteZeilen, letzte));
      break;
    case Qt::Key_Return:
    case Qt::Key_Enter:
      nimm(zeile);
      break;
    default:
      hide();
  }
  event->accept();
  return true;
}

QStringList Auswahlliste::texte() const { return m_modell->stringList(); }

QString Auswahlliste::markiert() const {
  return m_liste->currentIndex().data(Qt::DisplayRole).toString();
}

int Auswahlliste::sucheAnfang(const QStringList& texte, const QString& anfang, int hinter) {
  const int zahl = static_cast<int>(texte.size());
  for (int i = 1; i <= zahl; ++i) {
    const int zeile = (hinter + i) % zahl;
    if (texte[zeile].startsWith(anfang, Qt::CaseInsensitive)) return zeile;
  }
  return -1;
}

void Auswahlliste::zeige(const QStringList& texte, int zeile) {
  m_modell->setStringList(texte);
  m_liste->setFont(m_feld->font());
  // The keyboard is in the field, yet the marked text is the one that Enter takes.
  QPalette farben = QApplication::palette();
  for (const auto rolle : {QPalette::Highlight, QPalette::HighlightedText})
    farben.setColor(QPalette::Inactive, rolle, farben.color(QPalette::Active, rolle));
  m_liste->setPalette(farben);
  m_liste->scrollToTop();
  anlegen();
  if (!isVisible()) {
    show();
    qApp->installEventFilter(this);
  }
  setZeile(zeile);
}

// Below the field, above it where there is more room; as wide as the texts need.
void Auswahlliste::anlegen() {
  const QStringList texte = m_modell->stringList();
  const QFontMetrics mass(m_feld->font());
  int breite = 0;
  for (qsizetype i = 0; i < std::min<qsizetype>(texte.size(), GemesseneTexte); ++i)
    breite = std::max(breite, mass.horizontalAdvance(texte[i]));
  const int zeilen = static_cast<int>(std::min<qsizetype>(texte.size(), MeisteZeilen));
  const int höhe = std::max(m_liste->sizeHintForRow(0), mass.height()) * zeilen + 6;
  breite += m_liste->verticalScrollBar()->sizeHint().width() + 20;
  const QRect schirm = m_feld->screen()->availableGeometry();
  breite = std::min(std::max(breite, m_feld->width()), std::min(schirm.width(), 600));
  QPoint ort = m_feld->mapToGlobal(QPoint(0, m_feld->height()));
  if (ort.y() + höhe > schirm.bottom()) {
    const int oben = m_feld->mapToGlobal(QPoint(0, 0)).y() - höhe;
    if (oben >= schirm.top()) ort.setY(oben);
  }
  ort.setX(std::max(schirm.left(), std::min(ort.x(), schirm.right() - breite)));
  setGeometry(QRect(ort, QSize(breite, höhe)));
}

void Auswahlliste::setZeile(int zeile) {
  m_vonSelbst = false;
  if (zeile < 0) {
    m_liste->setCurrentIndex({});
    m_liste->clearSelection();
    return;
  }
  m_liste->setCurrentIndex(m_modell->index(zeile));
  m_liste->scrollTo(m_modell->index(zeile));
}

void Auswahlliste::nimm(int zeile) {
  if (zeile < 0) return;
  const QString text = m_modell->index(zeile).data(Qt::DisplayRole).toString();
  hide();
  Q_EMIT genommen(text);
}

bool Auswahlliste::eventFilter(QObject* objekt, QEvent* event) {
  switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
      if (auto* fenster = qobject_cast<QWidget*>(objekt); fenster != nullptr && fenster != this &&
                                                          !isAncestorOf(fenster) &&
                                                          !m_feld->isAncestorOf(fenster))
        hide();
      break;
    case QEvent::Wheel:
      if (auto* fenster = qobject_cast<QWidget*>(objekt);
          fenster != nullptr && fenster != this && !isAncestorOf(fenster))
        hide();
      break;
    case QEvent::Move:
    case QEvent::Resize:
    case QEvent::Close:
    case QEvent::WindowDeactivate:
      if (objekt == m_feld->window()) hide();
      break;
    default:
      break;
  }
  return QFrame::eventFilter(objekt, event);
}

void Auswahlliste::hideEvent(QHideEvent* event) {
  qApp->removeEventFilter(this);
  QFrame::hideEvent(event);
}
