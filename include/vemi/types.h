/**
 * @file types.h
 * Element types, records and enumerations that the whole interface shares.
 *
 * How an image is described by a pointer, a step and a size, and how a function's name is read, is told in vemi.h.
 */
#ifndef VEMI_TYPES_H
#define VEMI_TYPES_H

#include <stdint.h>

/** Marks a function that the shared library exports. */
#if defined(__GNUC__)
#define VEMI_API __attribute__((visibility("default")))
#else
#define VEMI_API
#endif

/**
 * @defgroup vemi_elements Element types
 *
 * The number is the width of one element in bits; the letters are `u` for unsigned, `s` for two's complement, `f` for
 * IEEE 754 binary floating point, and a trailing `c` for a complex pair. The part behind "Vemi" is the token that
 * stands for the type in a function's name: vemiCopy_16s_C1R works on Vemi16s.
 *
 * The token `24u`, which only the palette functions have, stands for three bytes and has no type of its own.
 * @{
 */

typedef uint8_t Vemi1u;   /**< eight pixels of one bit each; the first pixel is the most significant bit */
typedef uint8_t Vemi8u;   /**< 0 to 255 */
typedef int8_t Vemi8s;    /**< -128 to 127 */
typedef uint16_t Vemi16u; /**< 0 to 65535 */
typedef int16_t Vemi16s;  /**< -32768 to 32767 */
typedef uint32_t Vemi32u; /**< 0 to 2^32 - 1; written by palette functions only */
typedef int32_t Vemi32s;  /**< -2^31 to 2^31 - 1 */
typedef float Vemi32f;    /**< binary32 */
typedef int64_t Vemi64s;  /**< moments and their state */
typedef double Vemi64f;   /**< moments and their state, means, norms, transforms of coordinates */

/** Complex element of two Vemi16s. A row of complex elements is a plain array re, im, re, im, ... */
typedef struct Vemi16sc {
  Vemi16s re; /**< real part, at the lower address */
  Vemi16s im; /**< imaginary part */
} Vemi16sc;

/** Complex element of two Vemi32s. */
typedef struct Vemi32sc {
  Vemi32s re; /**< real part, at the lower address */
  Vemi32s im; /**< imaginary part */
} Vemi32sc;

/** Complex element of two Vemi32f. */
typedef struct Vemi32fc {
  Vemi32f re; /**< real part, at the lower address */
  Vemi32f im; /**< imaginary part */
} Vemi32fc;

/** @} */

/**
 * @defgroup vemi_records Sizes, positions and rectangles
 *
 * All in pixels, never in elements or bytes, and always passed by value.
 * @{
 */

/** Size of a region. A region function wants at least 1 in both, and answers anything less with vemiErrSize. */
typedef struct VemiSize {
  int width;  /**< columns */
  int height; /**< rows */
} VemiSize;

/** A position: x counts columns to the right, y counts rows downward, both from 0. */
typedef struct VemiPoint {
  int x; /**< column */
  int y; /**< row */
} VemiPoint;

/** A rectangle within a larger image, by its top left pixel and its size. */
typedef struct VemiRect {
  int x;      /**< leftmost column */
  int y;      /**< topmost row */
  int width;  /**< columns */
  int height; /**< rows */
} VemiRect;

/** @} */

/** What vemiGetLibVersion (core.h) tells about the library. */
typedef struct VemiLibVersion {
  int major;             /**< major version of the interface */
  int minor;             /**< minor version of the interface */
  int majorBuild;        /**< build series */
  int build;             /**< build number within its series */
  char targetCpu[4];     /**< code of the build's target: two characters and two zeros */
  const char* Name;      /**< file name that the record was issued for */
  const char* Version;   /**< version as text, "v" and numbers parted by dots */
  const char* BuildDate; /**< date of the interface as text, "Mmm dd yyyy" */
} VemiLibVersion;

/**
 * @defgroup vemi_enumerations Shared enumerations
 *
 * An enumeration crosses the boundary as a plain int, so that any number may be passed from any language; the names
 * below are the numbers that have a meaning. What a function does with another number is part of its contract and is
 * told beside it. Enumerations that one family alone takes stand with that family.
 * @{
 */

/**
 * How two values are compared; read it as "source, operator, other".
 * Comparisons (vemiCompare, vemiCompareC) know all five, the plain vemiThreshold only less and greater.
 */
typedef int vemiCmpOp;
enum {
  vemiCmpLess = 0,      /**< less than */
  vemiCmpLessEq = 1,    /**< less than or equal to */
  vemiCmpEq = 2,        /**< equal to */
  vemiCmpGreaterEq = 3, /**< greater than or equal to */
  vemiCmpGreater = 4    /**< greater than */
};

/** How a conversion (vemiConvert) from floating point gets to an integer. Any number but 1 truncates. */
typedef int vemiRoundMode;
enum {
  vemiRndZero = 0, /**< drop the fraction, toward zero */
  vemiRndNear = 1  /**< to the nearest integer, and to the even one of two equally near */
};

/**
 * What matters more to the caller. Only vemiHintAccurate changes anything, in the functions that say so; every other
 * number, listed or not, asks for the fast way.
 */
typedef int vemiHint;
enum {
  vemiHintNone = 0,    /**< no preference: the same as vemiHintFast */
  vemiHintFast = 1,    /**< the fast way */
  vemiHintAccurate = 2 /**< the accurate way, as described with the function */
};

/** @} */

#endif
