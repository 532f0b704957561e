#include "platform/controls/Rechner.h"

#include <QApplication>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QMouseEvent>
#include <QPushButton>

#include "platform/controls/Aufklappen.h"

using Operation = Rechenwerk::Operation;

Rechner::Rechner(QWidget* eltern, double wert, std::pair<int, int> sätze,
                 std::function<bool(double)> übernehmen)
    : QFrame(eltern, Qt::Popup),
      m_sätze(sätze),
      m_übernehmen(std::move(übernehmen)),
      m_raster(new QGridLayout(this)),
      m_anzeige(new QLabel(this)),
      m_vorgang(new QLabel(this)) {
  setObjectName(QStringLiteral("rechner"));
  setAttribute(Qt::WA_DeleteOnClose);
  setAttribute(Qt::WA_NoMouseReplay);  // a click on the field's button only closes it
  setFrameShape(QFrame::Box);
  setFocusPolicy(Qt::StrongFocus);
  setAccessibleName(QStringLiteral("Taschenrechner"));
  m_werk.setWert(wert);

  m_vorgang->setObjectName(QStringLiteral("vorgang"));
  m_vorgang->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  m_vorgang->setForegroundRole(QPalette::PlaceholderText);
  m_anzeige->setObjectName(QStringLiteral("anzeige"));
  m_anzeige->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  m_anzeige->setFrameShape(QFrame::StyledPanel);
  m_anzeige->setAutoFillBackground(true);
  m_anzeige->setBackgroundRole(QPalette::Base);
  m_anzeige->setForegroundRole(QPalette::Text);
  m_anzeige->setMargin(4);
  QFont groß = font();
  groß.setPointSizeF(groß.pointSizeF() * 1.4);
  m_anzeige->setFont(groß);

  m_raster->setContentsMargins(8, 6, 8, 8);
  m_raster->setSpacing(4);
  m_raster->addWidget(m_vorgang, 0, 0, 1, 4);
  m_raster->addWidget(m_anzeige, 1, 0, 1, 4);
  tastenfeld();
  auffrischen();
}

void Rechner::tastenfeld() {
  const auto rechne = [this](Operation op) { return [this, op] { m_werk.operation(op); }; };
  knopf(QStringLiteral("C"), QStringLiteral("c"), QStringLiteral("Löschen (C)"), 2, 0,
        [this] { m_werk.löschen(); });
  knopf(QStringLiteral("←"), QStringLiteral("zurueck"),
        QStringLiteral("Letzte Stelle löschen (Rücktaste)"), 2, 1, [this] { m_werk.zurück(); });
  const QString satz1 = QString::number(m_sätze.first);
  const QString satz2 = QString::number(m_sätze.second);
  auto* steuer = knopf(
      QStringLiteral("MwSt %1 | %2 %").arg(satz1, satz2), QStringLiteral("mwst"),
      QStringLiteral("Mehrwertsteuer dazu: linke Maustaste (M) %1 %, rechte Maustaste "
                     "(Umschalt+M) %2 %")
          .arg(satz1, satz2),
      2, 2, [this] { m_werk.steuer(m_sätze.first); }, 2);
  steuer->installEventFilter(this);

  for (int z = 1; z <= 9; ++z)
    knopf(QString::number(z), QStringLiteral("ziffer_%1").arg(z), {}, 5 - (z - 1) / 3, (z - 1) % 3,
          [this, z] { m_werk.ziffer(z); });
  knopf(QStringLiteral("0"), QStringLiteral("ziffer_0"), {}, 6, 0, [this] { m_werk.ziffer(0); });
  knopf(QStringLiteral(","), QStringLiteral("komma"), {}, 6, 1, [this] { m_werk.komma(); });
  knopf(QStringLiteral("="), QStringLiteral("gleich"), {}, 6, 2, [this] { m_werk.gleich(); });
  knopf(QStringLiteral("÷"), QStringLiteral("geteilt"), QStringLiteral("Geteilt (/)"), 3, 3,
        rechne(Operation::Geteilt));
  knopf(QStringLiteral("×"), QStringLiteral("mal"), QStringLiteral("Mal (*)"), 4, 3,
        rechne(Operation::Mal));
  knopf(QStringLiteral("−"), QStringLiteral("minus"), QStringLiteral("Minus (-)"), 5, 3,
        rechne(Operation::Minus));
  knopf(QStringLiteral("+"), QStringLiteral("plus"), QStringLiteral("Plus (+)"), 6, 3,
        rechne(Operation::Plus));

  auto* nehmen = new QPushButton(QStringLiteral("Übernehmen"), this);
  nehmen->setObjectName(QStringLiteral("uebernehmen"));
  nehmen->setToolTip(QStringLiteral("Ergebnis in das Feld setzen (Eingabetaste)"));
  nehmen->setFocusPolicy(Qt::NoFocus);
  nehmen->setAutoDefault(false);
  connect(nehmen, &QPushButton::clicked, this, &Rechner::nehmen);
  m_raster->addWidget(nehmen, 7, 0, 1, 4);
}

QPushButton* Rechner::knopf(const QString& text, const QString& name, const QString& tipp,
                            int zeile, int spalte, std::function<void()> aktion, int breite) {
  auto* knopf = new QPushButton(text, this);
  knopf->setObjectName(name);
  knopf->setToolTip(tipp);
  knopf->setFocusPolicy(Qt::NoFocus);  // the keys stay with the calculator
  knopf->setAutoDefault(false);
  if (breite == 1) knopf->setFixedWidth(fontMetrics().horizontalAdvance(u'0') * 5);
  connect(knopf, &QPushButton::clicked, this, [this, aktion = std::move(aktion)] {
    aktion();
    auffrischen();
  });
  m_raster->addWidget(knopf, zeile, spalte, 1, breite);
  return knopf;
}

void Rechner::zeigeUnter(QWidget* feld) {
  adjustSize();
  move(aufklappOrt(feld, sizeHint()));
  show();
  setFocus(Qt::PopupFocusReason);
}

void Rechner::keyPressEvent(QKeyEvent* event) {
  const QString zeichen = event->text();
  const QChar c = zeichen.isEmpty() ? QChar() : zeichen.front();
  if (event->key() == Qt::Key_Escape || event->key() == Qt::Key_F4) {
    close();
    return;
  }
  if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
    if (!m_werk.offen()) {
      nehmen();
      return;
    }
    m_werk.gleich();
  } else if (c >= u'0' && c <= u'9') {
    m_werk.ziffer(c.unicode() - u'0');
  } else if (c == u',' || c == u'.') {
    m_werk.komma();
  } else if (c == u'+') {
    m_werk.operation(Operation::Plus);
  } else if (c == u'-') {
    m_werk.operation(Operation::Minus);
  } else if (c == u'*') {
    m_werk.operation(Operation::Mal);
  } else if (c == u'/') {
    m_werk.operation(Operation::Geteilt);
  } else if (c == u'=') {
    m_werk.gleich();
  } else if (c == u'm' || c == u'M') {
    const bool zweiter = event->modifiers() & Qt::ShiftModifier;
    m_werk.steuer(zweiter ? m_sätze.second : m_sätze.first);
  } else if (c == u'c' || c == u'C' || event->key() == Qt::Key_Delete) {
    m_werk.löschen();
  } else if (event->key() == Qt::Key_Backspace) {
    m_werk.zurück();
  } else {
    QFrame::keyPressEvent(event);
    return;
  }
  auffrischen();
}

bool Rechner::eventFilter(QObject* objekt, QEvent* event) {
  if (event->type() == QEvent::MouseButtonRelease &&
      static_cast<QMouseEvent*>(event)->button() == Qt::RightButton) {
    const auto* knopf = qobject_cast<QWidget*>(objekt);
    if (knopf != nullptr && knopf->rect().contains(static_cast<QMouseEvent*>(event)->pos())) {
      m_werk.steuer(m_sätze.second);
      auffrischen();
    }
    return true;
  }
  return QFrame::eventFilter(objekt, event);
}

void Rechner::auffrischen(const QString& hinweis) {
  m_anzeige->setText(m_werk.anzeige());
  m_vorgang->setText(!hinweis.isEmpty()
                         ? hinweis
                         : (m_werk.vorgang().isEmpty() ? QStringLiteral(" ") : m_werk.vorgang()));
}

void Rechner::nehmen() {
  if (m_werk.offen()) m_werk.gleich();
  const auto wert = m_werk.wert();
  if (wert && m_übernehmen(*wert)) {
    close();
    return;
  }
  QApplication::beep();
  auffrischen(wert ? QStringLiteral("passt nicht in das Feld") : QString());
}
