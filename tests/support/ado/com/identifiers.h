// The identifiers that ADO publishes for its classes and for the interfaces declared in the type library.
#pragma once

#include <windows.h>

namespace qvr::tests::com {

constexpr GUID published(unsigned long number) {
  return {number, 0x0000, 0x0010, {0x80, 0x00, 0x00, 0xAA, 0x00, 0x6D, 0x2E, 0xA4}};
}

inline constexpr GUID kLibrary = published(0x205);  // version 2.5
inline constexpr GUID kConnectionClass = published(0x514);
inline constexpr GUID kCommandClass = published(0x507);
inline constexpr GUID kParameterClass = published(0x50B);
inline constexpr GUID kRecordsetClass = published(0x535);
inline constexpr GUID kConnectionInterface = published(0x550);
inline constexpr GUID kCommandInterface = published(0x54E);

// Asks an object whether it is one of ours; the answer is a DispatchObject.
inline constexpr GUID kOwnObject = {0x7C1B0F52, 0x5A6E, 0x4B0D, {0x9B, 0x3D, 0x51, 0x0E, 0x62, 0xA8, 0x17, 0xC4}};

}  // namespace qvr::tests::com
