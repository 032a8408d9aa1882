// Puts faults() in front of the cursor engine. Recordset, Field and Command are classes and no interfaces, so the
// linker swaps the calls that come from outside of their own file: each symbol below stands in the --wrap options of
// this library, too.

#include "Command.h"
#include "Faults.h"
#include "Recordset.h"

namespace tarnel::ado {
namespace {

template <class Body>
auto call(const char* name, Body&& body) {
  return test::faults().call(name, std::forward<Body>(body));
}

}  // namespace

// REPLACE(mangled name, result, name, parameters behind the object, arguments)
#define REPLACE(symbol, Result, name, parameters, arguments)                         \
  Result real_##symbol parameters __asm__("__real_" #symbol);                        \
  Result wrap_##symbol parameters __asm__("__wrap_" #symbol);                        \
  Result wrap_##symbol parameters {                                                  \
    return call("rows." #name, [&]() -> Result { return real_##symbol arguments; }); \
  }

using std::string;
using std::string_view;

REPLACE(_ZNK6tarnel3ado5Field5ValueEv, const Variant*, Value, (const Field* self), (self))
REPLACE(_ZN6tarnel3ado5Field8setValueERKNS_7VariantE, void, setValue, (Field * self, const Variant& value),
        (self, value))
REPLACE(_ZN6tarnel3ado9Recordset6FieldsESt17basic_string_viewIcSt11char_traitsIcEE, Field, Fields,
        (Recordset * self, string_view name), (self, name))
REPLACE(
    _ZN6tarnel3ado9Recordset4OpenERNS0_8ProviderENSt7__cxx1112basic_stringIcSt11char_traitsIcESaIcEEES9_NS0_10CursorTypeENS0_8LockTypeENS0_11CommandTypeE,
    void, Open,
    (Recordset * self, Provider& provider, string statement, string connection, CursorType type, LockType lock,
     CommandType command),
    (self, provider, std::move(statement), std::move(connection), type, lock, command))
REPLACE(_ZN6tarnel3ado9Recordset10disconnectEv, void, disconnect, (Recordset * self), (self))
REPLACE(_ZN6tarnel3ado9Recordset5CloseEv, void, Close, (Recordset * self), (self))
REPLACE(_ZNK6tarnel3ado9Recordset5stateEv, State, state, (const Recordset* self), (self))
REPLACE(_ZNK6tarnel3ado9Recordset5atBOFEv, bool, atBOF, (const Recordset* self), (self))
REPLACE(_ZNK6tarnel3ado9Recordset5atEOFEv, bool, atEOF, (const Recordset* self), (self))
REPLACE(_ZNK6tarnel3ado9Recordset11RecordCountEv, std::int32_t, RecordCount, (const Recordset* self), (self))
REPLACE(_ZN6tarnel3ado9Recordset9MoveFirstEv, void, MoveFirst, (Recordset * self), (self))
REPLACE(_ZN6tarnel3ado9Recordset8MoveNextEv, void, MoveNext, (Recordset * self), (self))
REPLACE(_ZN6tarnel3ado9Recordset4FindESt17basic_string_viewIcSt11char_traitsIcEERKNS_7VariantE, void, Find,
        (Recordset * self, string_view column, const Variant& value), (self, column, value))
REPLACE(_ZN6tarnel3ado9Recordset6AddNewEv, void, AddNew, (Recordset * self), (self))
REPLACE(_ZN6tarnel3ado9Recordset6UpdateEv, void, Update, (Recordset * self), (self))
REPLACE(_ZN6tarnel3ado9Recordset11UpdateBatchENS0_6AffectE, void, UpdateBatch, (Recordset * self, Affect affect),
        (self, affect))
REPLACE(_ZN6tarnel3ado9Recordset17setCursorLocationENS0_14CursorLocationE, void, setCursorLocation,
        (Recordset * self, CursorLocation value), (self, value))
REPLACE(_ZN6tarnel3ado9Recordset13setCursorTypeENS0_10CursorTypeE, void, setCursorType,
        (Recordset * self, CursorType value), (self, value))
REPLACE(_ZN6tarnel3ado9Recordset11setLockTypeENS0_8LockTypeE, void, setLockType, (Recordset * self, LockType value),
        (self, value))
REPLACE(_ZN6tarnel3ado7Command7ExecuteEv, std::int32_t, Execute, (Command * self), (self))

}  // namespace tarnel::ado
