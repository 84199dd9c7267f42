// The operations of the object interface on a model's columns, rows, nonzeros and family members.
//
// Each function is one member of ITARQModel: it takes the client's values as they come, checks them in the published
// order, and words its failures. A failure leaves the model as it was, and outputs unwritten, unless told otherwise.
// Arguments stand in the order of the member's own. No argument is ever changed.
#pragma once

#include "model/familyedit.h"
#include "model/itemedit.h"
#include "model/nonzeroedit.h"
