#include "core/main_list.h"

namespace {

// Stands in until the main form has set its list.
class LeereListe : public Hauptliste {
 public:
  int zeilen() const override { return 0; }
  int aktuelleZeile() const override { return -1; }
  void setAktuelleZeile(int) override {}
  QList<int> markierteZeilen() const override { return {}; }
  void setMarkierteZeilen(const QList<int>&) override {}
  QString zelle(int, const QString&) const override { return {}; }
  void löscheZeile(int) override {}
  void datenvölkerlesen() override {}
};

Hauptliste* aktuelle = nullptr;

}  // namespace

Hauptliste* hauptliste() {
  static LeereListe leer;
  return aktuelle ? aktuelle : &leer;
}

void setHauptliste(Hauptliste* liste) { aktuelle = liste; }
