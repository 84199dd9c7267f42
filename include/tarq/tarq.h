// All that a C++ client of the component needs: the interfaces, the dynamic values, references and createObject.
#pragma once

#include "component/createobject.h"
#include "frame/object.h"
#include "frame/objecterror.h"
#include "frame/safearray.h"
#include "frame/status.h"
#include "frame/valuelist.h"
#include "frame/variant.h"
#include "interfaces/classids.h"
#include "interfaces/enumerations.h"
#include "interfaces/itarqmodel.h"
