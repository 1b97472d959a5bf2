#pragma once
namespace vemo {
void EinlesenVonDatei();
}
