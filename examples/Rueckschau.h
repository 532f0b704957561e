#pragma once

class Begleiter;

// The tour's way through the evaluations: each is opened, asked something and its answer shown.
void auswertungenZeigen(Begleiter& tag);
