// What measurements take behind the region: a result or an array of one for each channel, in some members by a hint.
#pragma once

#include "core/exports.h"

#define VEMI_RESULT(T, name) ((T * name), (name))
#define VEMI_RESULT_HINT(T, name) ((T * name, vemiHint hint), (name, hint))
