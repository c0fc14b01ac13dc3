// vemiSqrDistanceFull, Same and Valid: the members.

#include "core/exports.h"
#include "measure/match.h"
#include "vemi/measure.h"

using namespace vemi;
using namespace vemi::measure;

VEMI_DEFINE(vemiSqrDistanceFull_Norm_32f_C1R, VEMI_MATCH(Vemi32f, Vemi32f),
            matched<Measure::squaredDistance, Shape::full, C1>)
VEMI_DEFINE(vemiSqrDistanceFull_Norm_32f_C3R, VEMI_MATCH(Vemi32f, Vemi32f),
            matched<Measure::squaredDistance, Shape::full, C3>)
VEMI_DEFINE(vemiSqrDistanceFull_Norm_32f_C4R, VEMI_MATCH(Vemi32f, Vemi32f),
            matched<Measure::squaredDistance, Shape::full, C4>)
VEMI_DEFINE(vemiSqrDistanceFull_Norm_32f_AC4R, VEMI_MATCH(Vemi32f, Vemi32f),
            matched<Measure::squaredDistance, Shape::full, AC4>)

VEMI_DEFINE(vemiSqrDistanceFull_Norm_8u32f_C1R, VEMI_MATCH(Vemi8u, Vemi32f),
            matched<Measure::squaredDistance, Shape::full, C1>)
VEMI_DEFINE(vemiSqrDistanceFull_Norm_8u32f_C3R, VEMI_MATCH(Vemi8u, Vemi32f),
            matched<Measure::squaredDistance, Shape::full, C3>)
VEMI_DEFINE(vemiSqrDistanceFull_Norm_8u32f_C4R, VEMI_MATCH(Vemi8u, Vemi32f),
            matched<Measure::squaredDistance, Shape::full, C4>)
VEMI_DEFINE(vemiSqrDistanceFull_Norm_8u32f_AC4R, VEMI_MATCH(Vemi8u, Vemi32f),
            matched<Measure::squaredDistance, Shape::full, AC4>)

VEMI_DEFINE(vemiSqrDistanceFull_Norm_8s32f_C1R, VEMI_MATCH(Vemi8s, Vemi32f),
            matched<Measure::squaredDistance, Shape::full, C1>)
VEMI_DEFINE(vemiSqrDistanceFull_Norm_8s32f_C3R, VEMI_MATCH(Vemi8s, Vemi32f),
            matched<Measure::squaredDistance, Shape::full, C3>)
VEMI_DEFINE(vemiSqrDistanceFull_Norm_8s32f_C4R, VEMI_MATCH(Vemi8s, Vemi32f),
            matched<Measure::squaredDistance, Shape::full, C4>)
VEMI_DEFINE(vemiSqrDistanceFull_Norm_8s32f_AC4R, VEMI_MATCH(Vemi8s, Vemi32f),
            matched<Measure::squaredDistance, Shape::full, AC4>)

VEMI_DEFINE(vemiSqrDistanceFull_Norm_8u_C1RSfs, VEMI_MATCH(Vemi8u, Vemi8u, VEMI_SFS),
            matched<Measure::squaredDistance, Shape::full, C1>)
VEMI_DEFINE(vemiSqrDistanceFull_Norm_8u_C3RSfs, VEMI_MATCH(Vemi8u, Vemi8u, VEMI_SFS),
            matched<Measure::squaredDistance, Shape::full, C3>)
VEMI_DEFINE(vemiSqrDistanceFull_Norm_8u_C4RSfs, VEMI_MATCH(Vemi8u, Vemi8u, VEMI_SFS),
            matched<Measure::squaredDistance, Shape::full, C4>)
VEMI_DEFINE(vemiSqrDistanceFull_Norm_8u_AC4RSfs, VEMI_MATCH(Vemi8u, Vemi8u, VEMI_SFS),
            matched<Measure::squaredDistance, Shape::full, AC4>)

VEMI_DEFINE(vemiSqrDistanceSame_Norm_32f_C1R, VEMI_MATCH(Vemi32f, Vemi32f),
            matched<Measure::squaredDistance, Shape::same, C1>)
VEMI_DEFINE(vemiSqrDistanceSame_Norm_32f_C3R, VEMI_MATCH(Vemi32f, Vemi32f),
            matched<Measure::squaredDistance, Shape::same, C3>)
VEMI_DEFINE(vemiSqrDistanceSame_Norm_32f_C4R, VEMI_MATCH(Vemi32f, Vemi32f),
            matched<Measure::squaredDistance, Shape::same, C4>)
VEMI_DEFINE(vemiSqrDistanceSame_Norm_32f_AC4R, VEMI_MATCH(Vemi32f, Vemi32f),
            matched<Measure::squaredDistance, Shape::same, AC4>)

VEMI_DEFINE(vemiSqrDistanceSame_Norm_8u32f_C1R, VEMI_MATCH(Vemi8u, Vemi32f),
            matched<Measure::squaredDistance, Shape::same, C1>)
VEMI_DEFINE(vemiSqrDistanceSame_Norm_8u32f_C3R, VEMI_MATCH(Vemi8u, Vemi32f),
            matched<Measure::squaredDistance, Shape::same, C3>)
VEMI_DEFINE(vemiSqrDistanceSame_Norm_8u32f_C4R, VEMI_MATCH(Vemi8u, Vemi32f),
            matched<Measure::squaredDistance, Shape::same, C4>)
VEMI_DEFINE(vemiSqrDistanceSame_Norm_8u32f_AC4R, VEMI_MATCH(Vemi8u, Vemi32f),
            matched<Measure::squaredDistance, Shape::same, AC4>)

VEMI_DEFINE(vemiSqrDistanceSame_Norm_8s32f_C1R, VEMI_MATCH(Vemi8s, Vemi32f),
            matched<Measure::squaredDistance, Shape::same, C1>)
VEMI_DEFINE(vemiSqrDistanceSame_Norm_8s32f_C3R, VEMI_MATCH(Vemi8s, Vemi32f),
            matched<Measure::squaredDistance, Shape::same, C3>)
VEMI_DEFINE(vemiSqrDistanceSame_Norm_8s32f_C4R, VEMI_MATCH(Vemi8s, Vemi32f),
            matched<Measure::squaredDistance, Shape::same, C4>)
VEMI_DEFINE(vemiSqrDistanceSame_Norm_8s32f_AC4R, VEMI_MATCH(Vemi8s, Vemi32f),
            matched<Measure::squaredDistance, Shape::same, AC4>)

VEMI_DEFINE(vemiSqrDistanceSame_Norm_8u_C1RSfs, VEMI_MATCH(Vemi8u, Vemi8u, VEMI_SFS),
            matched<Measure::squaredDistance, Shape::same, C1>)
VEMI_DEFINE(vemiSqrDistanceSame_Norm_8u_C3RSfs, VEMI_MATCH(Vemi8u, Vemi8u, VEMI_SFS),
            matched<Measure::squaredDistance, Shape::same, C3>)
VEMI_DEFINE(vemiSqrDistanceSame_Norm_8u_C4RSfs, VEMI_MATCH(Vemi8u, Vemi8u, VEMI_SFS),
            matched<Measure::squaredDistance, Shape::same, C4>)
VEMI_DEFINE(vemiSqrDistanceSame_Norm_8u_AC4RSfs, VEMI_MATCH(Vemi8u, Vemi8u, VEMI_SFS),
            matched<Measure::squaredDistance, Shape::same, AC4>)

VEMI_DEFINE(vemiSqrDistanceValid_Norm_32f_C1R, VEMI_MATCH(Vemi32f, Vemi32f),
            matched<Measure::squaredDistance, Shape::valid, C1>)
VEMI_DEFINE(vemiSqrDistanceValid_Norm_32f_C3R, VEMI_MATCH(Vemi32f, Vemi32f),
            matched<Measure::squaredDistance, Shape::valid, C3>)
VEMI_DEFINE(vemiSqrDistanceValid_Norm_32f_C4R, VEMI_MATCH(Vemi32f, Vemi32f),
            matched<Measure::squaredDistance, Shape::valid, C4>)
VEMI_DEFINE(vemiSqrDistanceValid_Norm_32f_AC4R, VEMI_MATCH(Vemi32f, Vemi32f),
            matched<Measure::squaredDistance, Shape::valid, AC4>)

VEMI_DEFINE(vemiSqrDistanceValid_Norm_8u32f_C1R, VEMI_MATCH(Vemi8u, Vemi32f),
            matched<Measure::squaredDistance, Shape::valid, C1>)
VEMI_DEFINE(vemiSqrDistanceValid_Norm_8u32f_C3R, VEMI_MATCH(Vemi8u, Vemi32f),
            matched<Measure::squaredDistance, Shape::valid, C3>)
VEMI_DEFINE(vemiSqrDistanceValid_Norm_8u32f_C4R, VEMI_MATCH(Vemi8u, Vemi32f),
            matched<Measure::squaredDistance, Shape::valid, C4>)
VEMI_DEFINE(vemiSqrDistanceValid_Norm_8u32f_AC4R, VEMI_MATCH(Vemi8u, Vemi32f),
            matched<Measure::squaredDistance, Shape::valid, AC4>)

VEMI_DEFINE(vemiSqrDistanceValid_Norm_8s32f_C1R, VEMI_MATCH(Vemi8s, Vemi32f),
            matched<Measure::squaredDistance, Shape::valid, C1>)
VEMI_DEFINE(vemiSqrDistanceValid_Norm_8s32f_C3R, VEMI_MATCH(Vemi8s, Vemi32f),
            matched<Measure::squaredDistance, Shape::valid, C3>)
VEMI_DEFINE(vemiSqrDistanceValid_Norm_8s32f_C4R, VEMI_MATCH(Vemi8s, Vemi32f),
            matched<Measure::squaredDistance, Shape::valid, C4>)
VEMI_DEFINE(vemiSqrDistanceValid_Norm_8s32f_AC4R, VEMI_MATCH(Vemi8s, Vemi32f),
            matched<Measure::squaredDistance, Shape::valid, AC4>)

VEMI_DEFINE(vemiSqrDistanceValid_Norm_8u_C1RSfs, VEMI_MATCH(Vemi8u, Vemi8u, VEMI_SFS),
            matched<Measure::squaredDistance, Shape::valid, C1>)
VEMI_DEFINE(vemiSqrDistanceValid_Norm_8u_C3RSfs, VEMI_MATCH(Vemi8u, Vemi8u, VEMI_SFS),
            matched<Measure::squaredDistance, Shape::valid, C3>)
VEMI_DEFINE(vemiSqrDistanceValid_Norm_8u_C4RSfs, VEMI_MATCH(Vemi8u, Vemi8u, VEMI_SFS),
            matched<Measure::squaredDistance, Shape::valid, C4>)
VEMI_DEFINE(vemiSqrDistanceValid_Norm_8u_AC4RSfs, VEMI_MATCH(Vemi8u, Vemi8u, VEMI_SFS),
            matched<Measure::squaredDistance, Shape::valid, AC4>)
