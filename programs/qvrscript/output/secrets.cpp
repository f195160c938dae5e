#include "qvrscript/output/secrets.h"

namespace qvr::script_tool {

Secrets::~Secrets() {
  for (Text& secret : secrets_) wipe(secret);
}

void Secrets::add(TextView secret) {
  if (!secret.empty()) secrets_.emplace_back(secret);
}

Text Secrets::left_out(TextView text) const {
  Text left(text);
  for (const Text& secret : secrets_) left = replace_all(left, secret, u"***");
  return left;
}

}  // namespace qvr::script_tool
