#include "com/clients/com_error_report.h"

namespace qvr::com {

void ComErrorReport::Informar(const services::ErrorNotice& notice) {
  const bool taken = or_default({}, false, [&] { return hand_over(notice), true; });
  if (!taken) otherwise_->Informar(notice);
}

void ComErrorReport::hand_over(const services::ErrorNotice& notice) {
  const services::Captions& captions = notice.captions;
  Array texts;
  for (const Text* caption : {&captions.server_not_found, &captions.duplicate_record, &captions.unknown_error,
                              &captions.method, &captions.object}) {
    texts.items.emplace_back(*caption);
  }
  // The component takes both in one argument.
  const Text label = notice.object.empty() ? notice.label : join({notice.label, u": ", notice.object});
  component_->call(L"Informar", notice.failure.number, notice.failure.description, notice.failure.source,
                   number_of(notice.motor), label, Value(std::move(texts)));
}

}  // namespace qvr::com
