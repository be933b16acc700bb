#include "expr/functions/FunctionTables.h"

#include <cmath>

#include "expr/functions/AxisRotation.h"
#include "expr/functions/ElementaryFunctions.h"
#include "expr/functions/FractalSurfaces.h"
#include "expr/functions/Interpolation.h"
#include "expr/functions/MatrixFunctions.h"
#include "expr/functions/NamedColours.h"
#include "expr/functions/PointAt.h"
#include "expr/functions/PointDistances.h"
#include "expr/functions/RandomGenerator.h"
#include "expr/functions/RotateOrientations.h"
#include "expr/functions/TransformBuilders.h"

namespace lumeric {

namespace {

// Kinds: s scalar, v vector, m matrix, t text (a string).  The same name may
// appear with other kinds or another count and then names another function.
const FunctionRow kRows[] = {
    // No argument.
    {"rand", "", randomNumber},
    {"random", "", randomNumber},
    {"pi", "", piConstant},
    {"e", "", eConstant},
    {"XYReflect", "", xyReflection},
    {"YZReflect", "", yzReflection},
    {"XZReflect", "", xzReflection},

    // One scalar.
    {"acos", "s", applyToScalar<std::acos>},
    {"asin", "s", applyToScalar<std::asin>},
    {"atan", "s", applyToScalar<std::atan>},
    {"cos", "s", applyToScalar<std::cos>},
    {"cosh", "s", applyToScalar<std::cosh>},
    {"exp", "s", applyToScalar<std::exp>},
    {"fabs", "s", applyToScalar<std::fabs>},
    {"abs", "s", applyToScalar<std::fabs>},
    {"log", "s", naturalLogarithm},
    {"ln", "s", naturalLogarithm},
    {"log10", "s", decimalLogarithm},
    {"sin", "s", applyToScalar<std::sin>},
    {"sinh", "s", applyToScalar<std::sinh>},
    {"tan", "s", applyToScalar<std::tan>},
    {"tanh", "s", applyToScalar<std::tanh>},
    {"sqrt", "s", applyToScalar<std::sqrt>},
    {"ceil", "s", applyToScalar<std::ceil>},
    {"floor", "s", applyToScalar<std::floor>},
    {"scale", "s", homogeneousScale},
    {"XRotate", "s", xRotation},
    {"YRotate", "s", yRotation},
    {"ZRotate", "s", zRotation},
    {"GreyColor", "s", greyColour},
    {"GrayColor", "s", greyColour},

    // One vector.
    {"Convert3D", "v", vectorTo3D},
    {"Convert4D", "v", vectorTo4D},
    {"PointAt", "v", pointAtVectorFromPosition},
    {"Transpose", "v", transposeVector},

    // One matrix.
    {"determinate", "m", determinantFunction},
    {"det", "m", determinantFunction},
    {"Inverse", "m", inverseFunction},
    {"Convert3D", "m", matrixTo3D},
    {"Convert4D", "m", matrixTo4D},
    {"Transpose", "m", transposeMatrix},

    // One string.
    {"Color", "t", namedColour},

    // Two scalars.
    {"atan2", "ss", arcTangentOfQuotient},
    {"FractalSurfaceIndex", "ss", fractalSurfaceIndex},
    {"fmod", "ss", applyToScalars<std::fmod>},
    {"mod", "ss", applyToScalars<std::fmod>},
    {"round", "ss", roundToMultiple},
    {"pow", "ss", applyToScalars<std::pow>},
    {"hypot", "ss", applyToScalars<std::hypot>},
    {"max", "ss", largerOf},
    {"min", "ss", smallerOf},

    // Two vectors.
    {"PointAt", "vv", pointAtVectors},

    // Three arguments.
    {"PointAt", "sss", pointAtFromPosition},
    {"Translate", "sss", translation},
    {"Scale", "sss", axisScale},
    {"Interpolate", "sss", interpolateScalars},
    {"FractalSurfaceData", "sss", fractalSurfaceData},
    {"Rotate", "vvs", rotationAboutLine},
    {"Interpolate", "vvs", interpolateVectors},

    // Four arguments.
    {"dist", "ssss", planeDistance},
    {"FractalSurfaceData", "sssv", seededFractalSurfaceData},
    {"Rotate", "vvvv", rotateBetweenPoints},

    // Six scalars.
    {"PointAt", "ssssss", pointAtCoordinates},
    {"Center", "ssssss", midpointOf},
    {"Rotate", "ssssss", rotateBetweenDirections},
    {"dist", "ssssss", spaceDistance},

    // Twelve scalars.
    {"Rotate", "ssssssssssss", rotateBetweenCoordinates},
};

}  // namespace

FunctionTable builtinFunctions() { return FunctionTable{kRows, sizeof kRows / sizeof kRows[0]}; }

}  // namespace lumeric
