#include "platform/controls/Meldungen.h"

#include <QApplication>
#include <QGridLayout>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QScrollArea>
#include <QStringList>
#include <deque>
#include <optional>

#include "platform/controls/Bauteile.h"

struct Meldungen::Probe::Innen {
  struct Erwartung {
    bool frage = false;
    bool nurTeil = false;
    QString text;
    bool ja = false;
    std::optional<Vorgabe> vorgabe;
  };
  std::deque<Erwartung> erwartet;
  QStringList fehler;
};

using Bauteile::fensterDarunter;

namespace {

constexpr int MeisteZeilen = 25;  // a longer text gets a scroll bar
constexpr int ZeichenJeZeile = 60;
constexpr int BreiteBeimRollen = 520;

Meldungen::Probe::Innen* probe = nullptr;

QString mitLf(QString text) {
  return text.replace(QStringLiteral("\r\n"), QStringLiteral("\n")).replace(u'\r', u'\n');
}

QString benennung(bool frage, const QString& text) {
  return (frage ? QStringLiteral("Frage \"") : QStringLiteral("Hinweis \"")) + text +
         QStringLiteral("\"");
}

// A box under the wait pointer shows the ordinary one.
class Zeigerpause {
 public:
  Zeigerpause() : m_aktiv(QApplication::overrideCursor() != nullptr) {
    if (m_aktiv) QApplication::setOverrideCursor(Qt::ArrowCursor);
  }
  ~Zeigerpause() {
    if (m_aktiv) QApplication::restoreOverrideCursor();
  }
  Zeigerpause(const Zeigerpause&) = delete;
  Zeigerpause& operator=(const Zeigerpause&) = delete;

 private:
  bool m_aktiv;
};

// About how many lines a text takes when it is wrapped.
qsizetype zeilenzahl(const QString& text) {
  qsizetype zeilen = 0;
  for (const auto& absatz : QStringView(text).split(u'\n'))
    zeilen += 1 + absatz.size() / ZeichenJeZeile;
  return zeilen;
}

// Very long texts scroll, so that the buttons stay on the screen.
void rollbarMachen(QMessageBox& box) {
  auto* schild = box.findChild<QLabel*>(QStringLiteral("qt_msgbox_label"));
  auto* raster = qobject_cast<QGridLayout*>(box.layout());
  if (schild == nullptr || raster == nullptr || zeilenzahl(box.text()) <= MeisteZeilen) return;
  int zeile = 0, spalte = 0, zeilen = 1, spalten = 1;
  raster->getItemPosition(raster->indexOf(schild), &zeile, &spalte, &zeilen, &spalten);
  raster->removeWidget(schild);
  auto* rolle = new QScrollArea(&box);
  rolle->setFrameShape(QFrame::NoFrame);
  rolle->setWidgetResizable(true);
  rolle->setWidget(schild);
  schild->setWordWrap(true);
  rolle->setMinimumSize(BreiteBeimRollen, schild->fontMetrics().lineSpacing() * MeisteZeilen);
  raster->addWidget(rolle, zeile, spalte, zeilen, spalten);
}

void vorbereiten(QMessageBox& box, const QString& name) {
  box.setObjectName(name);
  box.setWindowTitle(QStringLiteral("TOVA 2.0"));
  box.setTextFormat(Qt::PlainText);
  box.setTextInteractionFlags(Qt::TextSelectableByMouse);
}

// Compares a box with the queue; gives the answer of a Frage.
bool geprobt(bool frage, const QString& text, std::optional<Meldungen::Vorgabe> vorgabe) {
  if (probe->erwartet.empty()) {
    probe->fehler += QStringLiteral("Nicht erwartet: ") + benennung(frage, text);
    return false;
  }
  const auto soll = probe->erwartet.front();
  probe->erwartet.pop_front();
  const bool passt = soll.nurTeil ? text.contains(soll.text) : text == soll.text;
  if (soll.frage != frage || !passt) {
    probe->fehler += QStringLiteral("Erwartet: ") + benennung(soll.frage, soll.text) +
                     QStringLiteral(", gekommen: ") + benennung(frage, text);
    return false;
  }
  if (frage && soll.vorgabe && soll.vorgabe != vorgabe)
    probe->fehler += QStringLiteral("Andere Vorgabe: ") + benennung(frage, text);
  return soll.ja;
}

}  // namespace

namespace Meldungen {

void Hinweis(const QString& text, QWidget* über) {
  const QString zeilen = mitLf(text);
  if (probe != nullptr) {
    geprobt(false, zeilen, std::nullopt);
    return;
  }
  const Zeigerpause pause;
  QMessageBox box(QMessageBox::Information, {}, zeilen, QMessageBox::NoButton,
                  fensterDarunter(über));
  vorbereiten(box, QStringLiteral("hinweis"));
  auto* ok = box.addButton(QStringLiteral("&OK"), QMessageBox::AcceptRole);
  ok->setObjectName(QStringLiteral("ok"));
  box.setDefaultButton(ok);
  box.setEscapeButton(ok);
  rollbarMachen(box);
  box.exec();
}

bool Frage(const QString& text, Vorgabe vorgabe, QWidget* über) {
  const QString zeilen = mitLf(text);
  if (probe != nullptr) return geprobt(true, zeilen, vorgabe);
  const Zeigerpause pause;
  QMessageBox box(QMessageBox::Question, {}, zeilen, QMessageBox::NoButton, fensterDarunter(über));
  vorbereiten(box, QStringLiteral("frage"));
  auto* ja = box.addButton(QStringLiteral("&Ja"), QMessageBox::YesRole);
  ja->setObjectName(QStringLiteral("ja"));
  auto* nein = box.addButton(QStringLiteral("&Nein"), QMessageBox::NoRole);
  nein->setObjectName(QStringLiteral("nein"));
  box.setDefaultButton(vorgabe == Vorgabe::Ja ? ja : nein);
  box.setEscapeButton(nein);
  rollbarMachen(box);
  box.exec();
  return box.clickedButton() == ja;
}

Probe::Probe() : m_innen(new Innen) { probe = m_innen; }

Probe::~Probe() {
  const QString rest = fehler();
  if (!rest.isEmpty())
    qCritical("Nicht abgefragte Unterschiede der Probe:\n%s", qUtf8Printable(rest));
  if (probe == m_innen) probe = nullptr;
  delete m_innen;
}

Probe& Probe::hinweis(const QString& text) {
  m_innen->erwartet.push_back({false, false, mitLf(text), false, std::nullopt});
  return *this;
}

Probe& Probe::hinweisMit(const QString& teil) {
  m_innen->erwartet.push_back({false, true, mitLf(teil), false, std::nullopt});
  return *this;
}

Probe& Probe::frage(const QString& text, bool ja, Vorgabe vorgabe) {
  m_innen->erwartet.push_back({true, false, mitLf(text), ja, vorgabe});
  return *this;
}

Probe& Probe::frageMit(const QString& teil, bool ja) {
  m_innen->erwartet.push_back({true, true, mitLf(teil), ja, std::nullopt});
  return *this;
}

QString Probe::fehler() {
  QStringList alle = m_innen->fehler;
  for (const auto& rest : m_innen->erwartet)
    alle += QStringLiteral("Ausgeblieben: ") + benennung(rest.frage, rest.text);
  m_innen->fehler.clear();
  m_innen->erwartet.clear();
  return alle.join(u'\n');
}

}  // namespace Meldungen
