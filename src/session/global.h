// Functions shared by all classes.
#pragma once

#include <cstdint>
#include <span>

#include "base/value.h"
#include "session/catalogue.h"

namespace qvr {

// Loads this thread's catalogue in the default language, once per thread; the constructor of every public class calls
// it.
void InicializarComun() noexcept;

// The default language: the per-user setting "QVR" / "Idioma" / "IdiomaOmision", or the operating system's language
// where there is none. Read once per thread.
std::int32_t IdiomaOmision() noexcept;

// A message in this thread's language, with "|1", "|2"... replaced by the arguments. Loads the catalogue if necessary.
// Throws when there is no text.
Text message(Message row, std::span<const Value> arguments = {});

// Whether a directory search for the path with this attribute mask finds an entry; false for an empty path and on any
// failure.
bool ExisteArchivo(TextView path, std::int32_t attributes) noexcept;

}  // namespace qvr
