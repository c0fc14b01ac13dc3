// vemiMalloc: image blocks whose rows start on 32-byte boundaries.
// A failure is a null result; the step tells bad sizes (0) from exhausted memory.

#include "core/alloc.h"
#include "core/image.h"
#include "vemi/core.h"

namespace vemi {
namespace {

constexpr Vemi32u rowAlignment = 32;

/// Step and block size are 32-bit products that wrap, without an overflow test.
template <class T>
T* allocateRows(Vemi32u pixelSize, Vemi32u planes, VemiSize size, int* pStepBytes) {
  if (pStepBytes == nullptr) return nullptr;
  *pStepBytes = 0;
  if (size.width < 1 || size.height < 1) return nullptr;
  const Vemi32u step =
      (static_cast<Vemi32u>(size.width) * pixelSize + (rowAlignment - 1)) / rowAlignment * rowAlignment;
  *pStepBytes = static_cast<int>(step);
  const Vemi32u blockSize = step * static_cast<Vemi32u>(size.height) * planes;
  return static_cast<T*>(vemiAlignedAlloc(static_cast<int>(blockSize)));
}

template <class T, class L>
T* allocatePixels(VemiSize size, int* pStepBytes) {
  return allocateRows<T>(static_cast<Vemi32u>(pixelBytes<T, L>), 1, size, pStepBytes);
}

/// The planes lie one behind the other in one block.
template <class T, int planes>
T* allocatePlanes(VemiSize size, int* pStepBytes) {
  return allocateRows<T>(sizeof(T), planes, size, pStepBytes);
}

}  // namespace
}  // namespace vemi

using namespace vemi;

#define VEMI_MALLOC(name, T, ...) \
  T* name(VemiSize size, int* pStepBytes) { return __VA_ARGS__(size, pStepBytes); }

VEMI_MALLOC(vemiMalloc_8u_C1, Vemi8u, allocatePixels<Vemi8u, C1>)
VEMI_MALLOC(vemiMalloc_8u_C2, Vemi8u, allocatePixels<Vemi8u, C2>)
VEMI_MALLOC(vemiMalloc_8u_C3, Vemi8u, allocatePixels<Vemi8u, C3>)
VEMI_MALLOC(vemiMalloc_8u_C4, Vemi8u, allocatePixels<Vemi8u, C4>)
VEMI_MALLOC(vemiMalloc_8u_AC4, Vemi8u, allocatePixels<Vemi8u, AC4>)
VEMI_MALLOC(vemiMalloc_8u_P3, Vemi8u, allocatePlanes<Vemi8u, 3>)

VEMI_MALLOC(vemiMalloc_16u_C1, Vemi16u, allocatePixels<Vemi16u, C1>)
VEMI_MALLOC(vemiMalloc_16u_C2, Vemi16u, allocatePixels<Vemi16u, C2>)
VEMI_MALLOC(vemiMalloc_16u_C3, Vemi16u, allocatePixels<Vemi16u, C3>)
VEMI_MALLOC(vemiMalloc_16u_C4, Vemi16u, allocatePixels<Vemi16u, C4>)
VEMI_MALLOC(vemiMalloc_16u_AC4, Vemi16u, allocatePixels<Vemi16u, AC4>)
VEMI_MALLOC(vemiMalloc_16u_P3, Vemi16u, allocatePlanes<Vemi16u, 3>)

VEMI_MALLOC(vemiMalloc_16s_C1, Vemi16s, allocatePixels<Vemi16s, C1>)
VEMI_MALLOC(vemiMalloc_16s_C2, Vemi16s, allocatePixels<Vemi16s, C2>)
VEMI_MALLOC(vemiMalloc_16s_C3, Vemi16s, allocatePixels<Vemi16s, C3>)
VEMI_MALLOC(vemiMalloc_16s_C4, Vemi16s, allocatePixels<Vemi16s, C4>)
VEMI_MALLOC(vemiMalloc_16s_AC4, Vemi16s, allocatePixels<Vemi16s, AC4>)
VEMI_MALLOC(vemiMalloc_16s_P3, Vemi16s, allocatePlanes<Vemi16s, 3>)

VEMI_MALLOC(vemiMalloc_32s_C1, Vemi32s, allocatePixels<Vemi32s, C1>)
VEMI_MALLOC(vemiMalloc_32s_C2, Vemi32s, allocatePixels<Vemi32s, C2>)
VEMI_MALLOC(vemiMalloc_32s_C3, Vemi32s, allocatePixels<Vemi32s, C3>)
VEMI_MALLOC(vemiMalloc_32s_C4, Vemi32s, allocatePixels<Vemi32s, C4>)
VEMI_MALLOC(vemiMalloc_32s_AC4, Vemi32s, allocatePixels<Vemi32s, AC4>)
VEMI_MALLOC(vemiMalloc_32s_P3, Vemi32s, allocatePlanes<Vemi32s, 3>)

VEMI_MALLOC(vemiMalloc_32f_C1, Vemi32f, allocatePixels<Vemi32f, C1>)
VEMI_MALLOC(vemiMalloc_32f_C2, Vemi32f, allocatePixels<Vemi32f, C2>)
VEMI_MALLOC(vemiMalloc_32f_C3, Vemi32f, allocatePixels<Vemi32f, C3>)
VEMI_MALLOC(vemiMalloc_32f_C4, Vemi32f, allocatePixels<Vemi32f, C4>)
VEMI_MALLOC(vemiMalloc_32f_AC4, Vemi32f, allocatePixels<Vemi32f, AC4>)
VEMI_MALLOC(vemiMalloc_32f_P3, Vemi32f, allocatePlanes<Vemi32f, 3>)

VEMI_MALLOC(vemiMalloc_32sc_C1, Vemi32sc, allocatePixels<Vemi32sc, C1>)
VEMI_MALLOC(vemiMalloc_32sc_C2, Vemi32sc, allocatePixels<Vemi32sc, C2>)
VEMI_MALLOC(vemiMalloc_32sc_C3, Vemi32sc, allocatePixels<Vemi32sc, C3>)
VEMI_MALLOC(vemiMalloc_32sc_C4, Vemi32sc, allocatePixels<Vemi32sc, C4>)
VEMI_MALLOC(vemiMalloc_32sc_AC4, Vemi32sc, allocatePixels<Vemi32sc, AC4>)
VEMI_MALLOC(vemiMalloc_32sc_P3, Vemi32sc, allocatePlanes<Vemi32sc, 3>)

VEMI_MALLOC(vemiMalloc_32fc_C1, Vemi32fc, allocatePixels<Vemi32fc, C1>)
VEMI_MALLOC(vemiMalloc_32fc_C2, Vemi32fc, allocatePixels<Vemi32fc, C2>)
VEMI_MALLOC(vemiMalloc_32fc_C3, Vemi32fc, allocatePixels<Vemi32fc, C3>)
VEMI_MALLOC(vemiMalloc_32fc_C4, Vemi32fc, allocatePixels<Vemi32fc, C4>)
VEMI_MALLOC(vemiMalloc_32fc_AC4, Vemi32fc, allocatePixels<Vemi32fc, AC4>)
VEMI_MALLOC(vemiMalloc_32fc_P3, Vemi32fc, allocatePlanes<Vemi32fc, 3>)
