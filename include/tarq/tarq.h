// All that a C++ client of the component needs: the interfaces, the dynamic values, references, createObject and events,
// and what a late-bound one calls members and reads tables by.
#pragma once

#include "component/classtable.h"
#include "component/createobject.h"
#include "component/eventsink.h"
#include "frame/connectionpoint.h"
#include "frame/dispatch.h"
#include "frame/membertable.h"
#include "frame/module.h"
#include "frame/object.h"
#include "frame/objecterror.h"
#include "frame/safearray.h"
#include "frame/status.h"
#include "frame/valuelist.h"
#include "frame/variant.h"
#include "interfaces/classids.h"
#include "interfaces/enumerations.h"
#include "interfaces/enumerationtables.h"
#include "interfaces/itarqmodel.h"
#include "interfaces/itarqmodelevents.h"
#include "interfaces/itarqres.h"
#include "interfaces/itarqvar.h"
