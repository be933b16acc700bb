// Library-wide state of the translator.  One translation runs at a time, on
// the host's thread; nothing here is locked.
#ifndef LUMERIC_DRIVER_LIBRARYSTATE_H
#define LUMERIC_DRIVER_LIBRARYSTATE_H

#include <cstdio>

namespace lumeric {

class QvNameTable;
class QvSceneInput;

constexpr int kOutputNameSize = 256;

// The output scene file; OUTPUT_TO may open it while the scene is read.
extern FILE* outputFile;
// The name OUTPUT_TO gave the output file.
extern char outputFileName[kOutputNameSize];
// Whether the extension statements, VARNAME and the extension nodes are
// recognised.
extern bool extensionsEnabled;
// The input being read and evaluated; its DEF table serves name look-ups.
extern QvSceneInput* currentInput;
// Every named node, by name: a QvPointerList of nodes per name.
extern QvNameTable* nameRegistry;
// The step every written number is rounded to; 0 or less turns rounding
// off.  Set by PRECISION and never reset between runs.
extern double precisionQuantum;

// Appends `node` to the registry list of `text`, creating registry and list
// on first use.
void addName(class QvNode* node, const char* text);
// Removes `node` from the list of `text`; a program error when it is not
// there.
void removeName(class QvNode* node, const char* text);

// `v` rounded to the nearest multiple of precisionQuantum (halves away from
// zero); unchanged when the quantum is 0 or less, or when v / quantum is
// beyond the doubles (rounding never makes a finite number infinite).
double roundToPrecision(double v);
// The number as it is written: roundToPrecision(v) in `out` and true, or,
// when `v` is infinite or NaN, 0 in `out` and false; the caller then posts
// "Number is not finite" where the value came from, so that every output
// loads.
bool roundForWriting(double v, double& out);

}  // namespace lumeric

#endif  // LUMERIC_DRIVER_LIBRARYSTATE_H
