// Base of the collections: Count, Item by position or name, and enumeration.
#pragma once

#include "support/ado/com/dispatch_object.h"

namespace qvr::tests::com {

class Collection : public DispatchObject {
 public:
  virtual std::size_t size() const = 0;
  virtual Text name_of(std::size_t index) const = 0;
  virtual Ref<DispatchObject> item(std::size_t index) = 0;

  // Where the argument points, a position from 0 or a name; fails with ADO's 3265 when that is nowhere.
  std::size_t locate(const Value& index) const;

  // IEnumVARIANT over the items of this moment.
  Ref<IUnknown> enumerator();

 protected:
  virtual TextView source() const = 0;
};

// The members every collection offers; a class adds its own.
Members collection_members();

// The answer of a property that gives a collection. With an argument it is the item, because scripting hosts pass
// `object.Fields(0)` on as one call.
void answer_collection(Call& call, const Ref<Collection>& collection);

}  // namespace qvr::tests::com
