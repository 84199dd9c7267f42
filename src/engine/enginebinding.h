// EngineBinding: where a model's engine library is, and the engine that is bound from it.
#pragma once
// (to be written)
