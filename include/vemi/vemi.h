/**
 * @file vemi.h
 * Vemi, image-processing primitives behind a flat C interface: this header brings in all of it.
 *
 * Each function does one operation on a rectangular region of an image that lies in the caller's memory. There is
 * nothing to set up, nothing to configure and nothing to shut down:
 *
 *     VemiSize size = {640, 480};
 *     int step;
 *     Vemi8u* image = vemiMalloc_8u_C3(size, &step);
 *     const Vemi8u orange[3] = {255, 128, 0};
 *     vemiSet_8u_C3R(orange, image, step, size);
 *     vemiFree(image);
 */
#ifndef VEMI_VEMI_H
#define VEMI_VEMI_H

#include "vemi/arith.h"
#include "vemi/color.h"
#include "vemi/core.h"
#include "vemi/filter.h"
#include "vemi/generate.h"
#include "vemi/geometry.h"
#include "vemi/map.h"
#include "vemi/measure.h"
#include "vemi/status.h"
#include "vemi/transform.h"
#include "vemi/types.h"
#include "vemi/version.h"

/**
 * @defgroup vemi_guide How to read and call the functions
 *
 * ### Images
 *
 * There is no image object. At each call an image is described by three things:
 *
 * - a **pointer** to the first pixel of the region to work on, its top left corner;
 * - a **step**, the distance in bytes (never in elements) from a pixel to the one below it;
 * - a **size** in pixels, `roiSize`. Channels never count in it: a row of 10 pixels is 10 wide in C1 and in C4.
 *
 * A region inside a larger image is therefore the same call with a pointer further in, the image's own step, and the
 * region's size. The region whose corner is at column x and row y of an image begins at
 *
 *     (T*)((Vemi8u*)image + (ptrdiff_t)y * step) + x * channels
 *
 * (ptrdiff_t comes from stddef.h.) Memory may come from anywhere. Rows need no alignment: any pointer and any step of
 * at least 1 is accepted, also a step that is no multiple of the element size. Rows on 32-byte boundaries, as
 * vemiMalloc gives them, are the fastest. Steps are never negative: an image stored bottom-up is worked on from its
 * lowest address. A source step may be shorter than a row, so that rows share bytes. With a destination step shorter
 * than a row, what the shared bytes end up with is unspecified.
 *
 * ### Names
 *
 * A name says what is done, on which type and layout, and in which shape of call:
 *
 *     vemi Copy         _ 8u  _ C1 R          copy a region of one 8-bit channel
 *     vemi AddC         _ 16s _ C3 I R Sfs    add a constant to three 16-bit channels, in place, scaled
 *     vemi Convert      _ 8u32f _ C1 R        8-bit source, float destination
 *     vemi Threshold _ GTVal _ 32f _ C1 R     with a mode word that narrows the operation
 *
 * The type is an element type of types.h, or two of them, source then destination. The layout says how the channels of
 * a pixel lie in memory; where source and destination differ, both are given, source first (`C3P3`, `AC4C3`):
 *
 *     C1          one channel
 *     C2          two interleaved elements per pixel
 *     C3          three interleaved channels
 *     C4          four interleaved channels, all of them processed
 *     AC4         four interleaved channels; the first three are processed, the fourth, alpha, keeps in the destination
 *                 the value that it has there
 *     P2 P3 P4    two, three or four separate planes: an array of pointers and one step for all planes, unless the
 *                 prototype has a step for each
 *     AC1 AP4     one channel, which holds alpha values; four planes, the fourth of which is alpha
 *
 * and the letters behind the layout, in this order, give the shape of the call:
 *
 *     C      (behind a layout, C3CR) one channel of interest: the pointers address that channel in the first pixel, and
 *            only that channel takes part
 *     M      masked: a pixel is processed where its byte of a mask of the region's size is not zero
 *     I      in place: the destination, pSrcDst, is a source as well; the second one where there are two sources
 *     R      on a region: takes steps and a size
 *     Sfs    integer result with a scale factor, see below
 *
 * A C at the end of the operation (AddC) says that one operand is a constant: a value in one-channel forms, an array
 * with one value per channel in the others, three of them in C3 and AC4 and four in C4.
 *
 * ### Arguments
 *
 * They come in one order: sources, each with its step; constants; the destination with its step; the size; whatever is
 * special to the operation (the mask and its step in masked forms); the scale factor. Functions that fill an image take
 * the value first.
 *
 * Arrays of planes are declared `const T* const pSrc[3]`. C, unlike C++, does not convert a `T* planes[3]` to that
 * silently; declare the array as `const T* planes[3]` when it is only read.
 *
 * ### Scaled integer results
 *
 * An Sfs form computes its result exactly, multiplies it by 2 to the power of -scaleFactor, rounds to the nearest
 * integer (to the even one when two are equally near), and then limits it to the range of the destination's type. So a
 * scale factor of 1 halves, 0 leaves the value, and -1 doubles. Every int is a legal scale factor. The few operations
 * that cannot be exact, or that round in another way, say so.
 *
 * ### Floats
 *
 * A 32f expression rounds to single precision at each step, to nearest, in the rounding mode that a program starts
 * with. A NaN operand gives a NaN, and so does what has no result, such as infinity minus infinity. Which bits a
 * computed NaN has is the processor's choice: x86 makes NaNs with the sign bit and ARM without, and of two operands
 * they hand on different ones. Copies, and elements that a function leaves as they are, keep the bits of their NaNs.
 * Functions that take and give integers are not touched by a rounding mode that the calling thread has set, unless told
 * otherwise.
 *
 * ### What a call touches
 *
 * It reads and writes the pixels of the region and no others; where a filter or a geometric operation reads around its
 * region, its description says how far. Bytes between the rows are left alone. Unless told otherwise, the destination
 * must not overlap a source; sources may overlap each other, or be the same image.
 *
 * The pixels of the region must be memory that can be read, also where their values do not count: the fourth channel of
 * an AC4 source, and the pixels of source and destination that a mask does not select, are loaded with the others.
 *
 * Where a form keeps part of what it passes over (the fourth channel of an AC4 destination, the pixels that a mask does
 * not select), it may store the kept bytes again with the value that they had. So, for the time of the call, no other
 * thread may write to those. Channel-of-interest forms write the elements of their channel and nothing else: threads
 * may fill different channels of one image at the same time.
 *
 * ### Threads
 *
 * Any function may be called from any number of threads at once, as long as none of them writes what another one uses.
 * Some functions share their rows out among an OpenMP team and say so; the size of the team is the OpenMP runtime's
 * business (OMP_NUM_THREADS, omp_set_num_threads). The result never depends on it (but for the one that tells the size
 * of a team's buffer, vemiFilterWienerGetBufferSize), nor on the processor, the alignment or the build: tests hold
 * every function to equal bytes, but for the bits of computed NaNs, with teams of one, two and three threads on 64-bit
 * x86 with SSE4.2, AVX2 and AVX-512, on 32-bit x86 with SSSE3, and, under an emulator, on 64-bit ARM.
 *
 * ### Records and working memory
 *
 * What transforms compute once for all images of a size is a record: `...InitAlloc` makes one and stores its address,
 * `...Free` frees it. Its contents are the library's business. Calls only read it, so threads may share it; the state
 * of moments alone is written by the call that sums an image. A record of another kind is answered with
 * vemiErrContext.
 *
 * Some functions take working memory, pBuffer, of as many bytes as `...GetBufSize` or `...GetBufferSize` tells, at any
 * address. It holds nothing between calls, and each call wants its own for the time that it runs. Where the description
 * allows a null pointer, the call allocates and frees as much by itself.
 *
 * ### Ownership
 *
 * Images, records and buffers belong to the caller, and no pointer is kept after a call returns.
 *
 * How calls report is told in status.h.
 */

#endif
