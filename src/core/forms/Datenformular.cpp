#include "core/forms/Datenformular.h"

#include "core/globals.h"

void Datenformular::ergreifen() {
  m_db = TZ_Variablen::Arbeitsbereich.OpenDatabase(TZ_Variablen::DatenbankPfad);
}
