#pragma once

#include "platform/controls/Formular.h"
#include "platform/database/Datenbank.h"

// A form with a handle on the program's database, open from its loading until it was closed.
class Datenformular : public Formular {
 public:
  using Formular::Formular;

 protected:
  void ergreifen() override;  // throws Datenbankfehler
  void loslassen() override { m_db.Close(); }

  Database m_db;
};
