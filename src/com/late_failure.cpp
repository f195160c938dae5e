#include "com/late_failure.h"

#include "com/text_bstr.h"
#include "platform/windows/floating_point.h"

namespace qvr::com {
namespace {

constexpr std::uint32_t kControlFacility = 0x800A0000;

Text system_description(HRESULT result) {
  wchar_t buffer[512];
  constexpr DWORD kFlags = FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS;
  DWORD size = FormatMessageW(kFlags, nullptr, static_cast<DWORD>(result), 0, buffer, std::size(buffer), nullptr);
  while (size > 0 && (buffer[size - 1] == L'\r' || buffer[size - 1] == L'\n')) --size;
  return Text(buffer, buffer + size);
}

}  // namespace

std::int32_t failure_number_of(HRESULT result) noexcept {
  const auto bits = static_cast<std::uint32_t>(result);
  return (bits & 0xFFFF0000u) == kControlFacility ? static_cast<std::int32_t>(bits & 0xFFFF) : result;
}

HRESULT result_of(std::int32_t number) noexcept {
  return number > 0 && number <= 0xFFFF ? static_cast<HRESULT>(kControlFacility | static_cast<std::uint32_t>(number))
                                        : static_cast<HRESULT>(number);
}

void require(HRESULT result) {
  if (SUCCEEDED(result)) return;
  if (result == E_OUTOFMEMORY) throw RuntimeFailure(failure_number::kOutOfMemory);
  throw RuntimeFailure(failure_number_of(result), system_description(result));
}

void set_error_info(const FailureDetail& failure) noexcept {
  ComPtr<ICreateErrorInfo> created;
  ComPtr<IErrorInfo> info;
  if (FAILED(CreateErrorInfo(&created)) || FAILED(created.As(&info))) return;
  const OwnedBstr description(failure.description), source(failure.source);
  created->SetDescription(description.get());
  created->SetSource(source.get());
  const windows::HostFloatingPoint host;  // SetErrorInfo releases the previous one, an object of the host
  SetErrorInfo(0, info.Get());
}

}  // namespace qvr::com
