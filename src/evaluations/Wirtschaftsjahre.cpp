#include "evaluations/Wirtschaftsjahre.h"

#include "data/helpers.h"

namespace Auswertung {

namespace {

constexpr int MeisteJahre = 30;

QString jahrestext(const Eingaben& eingaben, int index) {
  return eingaben.text(QStringLiteral("t"), index).trimmed();
}

bool istJahreszahl(const QString& text) {
  return text.size() == 4 && NurZiffern(text) && text[0] != u'0';
}

}  // namespace

Jahre jahre(const Eingaben& eingaben) {
  return {jahrestext(eingaben, 0).toInt(), jahrestext(eingaben, 1).toInt()};
}

QStringList jahreszahlGründe(const Eingaben& eingaben) {
  QStringList gründe;
  for (const QString& text : {jahrestext(eingaben, 0), jahrestext(eingaben, 1)})
    if (!istJahreszahl(text))
      gründe += QStringLiteral("...das Jahr '%1' keine vierstellige Jahreszahl ist.").arg(text);
  return gründe;
}

QStringList wirtschaftsjahrGründe(const Eingaben& eingaben) {
  QStringList gründe = jahreszahlGründe(eingaben);
  if (!gründe.isEmpty()) return gründe;
  const Jahre zeitraum = jahre(eingaben);
  if (zeitraum.von > zeitraum.bis)
    gründe +=
        QStringLiteral("...das 'Wirtschaftsjahr von' größer ist als das 'Wirtschaftsjahr bis'.");
  else if (zeitraum.anzahl() > MeisteJahre)
    gründe += QStringLiteral("...die Auswertung max. über 30 Jahre erlaubt ist.");
  return gründe;
}

void jahreErgänzen(Eingaben& eingaben) {
  const auto fehlt = [&](int index) { return GanzLesen(jahrestext(eingaben, index)) == 0; };
  if (fehlt(0)) eingaben.setText(QStringLiteral("t"), 0, diesesJahr());
  if (fehlt(1)) eingaben.setText(QStringLiteral("t"), 1, jahrestext(eingaben, 0));
}

Gruppe wirtschaftsjahre() {
  return {
      QStringLiteral("Berechnungszeitraum in Wirtschaftsjahren"),
      {jahr(QStringLiteral("t_0"), QStringLiteral("Wirtschaftsjahr von")).slot(Zahlslots.jahrVon),
       jahr(QStringLiteral("t_1"), QStringLiteral("bis")).slot(Zahlslots.jahrBis).rechtsDavon()}};
}

Gruppe auswertungNach() {
  return {QStringLiteral("Buchungen auswerten (gruppieren) nach"),
          {optionen(QStringLiteral("optiauswertung"),
                    {QStringLiteral("Wirtschaftsjahren"),
                     QStringLiteral("Völker (zu listende Datenfelder siehe oben)")})
               .slot(Zahlslots.nachVölkern)}};
}

bool nachVölkern(const Eingaben& eingaben) {
  return eingaben.wahl(QStringLiteral("optiauswertung")) == 1;
}

}  // namespace Auswertung
