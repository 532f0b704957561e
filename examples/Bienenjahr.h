#pragma once

class Begleiter;

// The tour's way through the beekeeper's year: planning it, the sites, the trade.
void planungZeigen(Begleiter& tag);
void standorteZeigen(Begleiter& tag);
void handelZeigen(Begleiter& tag);
