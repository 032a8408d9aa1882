#include "Failure.h"

namespace tarnel {

void failSubscript() { throw Failure(failure::subscript, "Subscript out of range"); }
void failTypeMismatch() { throw Failure(failure::typeMismatch, "Type mismatch"); }
void failObjectNotSet() { throw Failure(failure::objectNotSet, "Object variable or With block variable not set"); }

}  // namespace tarnel
