/**
 * @file version.h
 * The version of these headers, for the preprocessor. It has no declarations, so that other languages can include it.
 *
 * vemiGetLibVersion (core.h) tells the version of the library that a program has been loaded with, which may be a later
 * one of the same major number. The two are compared where a program wants to know:
 *
 *     const VemiLibVersion* v = vemiGetLibVersion();
 *     int newer = v->major == VEMI_VERSION_MAJOR && v->minor > VEMI_VERSION_MINOR;
 */
#ifndef VEMI_VERSION_H
#define VEMI_VERSION_H

#define VEMI_VERSION_MAJOR 4 /**< the number in the SONAME: programs run with every library that has theirs */
#define VEMI_VERSION_MINOR 1 /**< grows with new functions */
#define VEMI_VERSION_PATCH 2 /**< grows with changes behind the same interface */

/** The three as one number that grows with the version: 40102 is 4.1.2. */
#define VEMI_VERSION_NUMBER (VEMI_VERSION_MAJOR * 10000 + VEMI_VERSION_MINOR * 100 + VEMI_VERSION_PATCH)

#endif
