#pragma once

#include <functional>

// A short tone from the computer.
namespace Ton {

// Plays a tone of this pitch (37 to 32767 hertz) for this time. False when neither the system nor
// a player that was set can play one; nothing is heard then.
bool piep(int hertz, int millisekunden);

// What plays the tones instead of the system; an empty function gives the system back its own.
void setSpieler(std::function<void(int hertz, int millisekunden)> spieler);

}  // namespace Ton
