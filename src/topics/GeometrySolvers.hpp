// Topic solvers of triangles, circles, perimeters, areas and volumes.
//
// Every solver takes lengths as they stand in the boxes, expects StepCount at the next free step,
// puts the lines below the figure of the worksheet, adds its steps and ends with ShowSteps. A
// length that is not above zero ends the solution with a complaint. Text that spells no number is
// fault 13.
#pragma once

#include <string>

namespace ordwise {

// a1, b1, c1 are the sides of the one triangle, and a2, b2, c2 those of the similar one, of which
// one is filled; the others are worked out and written back. If several are filled, the first of
// a2, c2, b2 counts. Fault 11 when the ratio of the sides rounds to zero.
// e.g. 3, 4, 5 and a2 = 6 -> b2 = 8, c2 = 10
void SimilarTriangles(const std::string& a1, const std::string& b1, const std::string& c1, std::string& a2,
                      std::string& b2, std::string& c2);

// One of the three is empty: the side to be found, c being the longest.
// e.g. "3", "4", "" -> 5 = c
void Pythagoras(const std::string& a, const std::string& b, const std::string& c);

enum class CircleMeasure { Radius = 1, Diameter = 2 };
void Circumference(const std::string& value, CircleMeasure kind);  // e.g. "2", Radius -> 12.56
void DiameterFromRadius(const std::string& radius);                // e.g. "4" -> 8
void RadiusFromDiameter(const std::string& diameter);              // e.g. "5" -> 2.5

// A triangle has the sides a, b and c; a square or rectangle the base a and the height b.
enum class PerimeterShape { Rectangle = 0, Triangle = 5 };
void Perimeter(const std::string& a, const std::string& b, const std::string& c, PerimeterShape kind);

// `first` and `second` are base and height; of a circle the text of pi and the radius; of a
// trapezoid side a and the height, side b being `third`.
// e.g. "4", "3", Triangle -> 6
enum class AreaShape { Rectangle = 1, Circle = 2, Triangle = 3, Parallelogram = 4, Trapezoid = 5 };
void Area(const std::string& first, const std::string& second, AreaShape kind, const std::string& third);

// `first`, `second` and `third` are length, width and height; of a round solid the text of pi, the
// radius and the height, which a sphere has none of.
// e.g. "2", "3", "4", Pyramid -> 8
enum class Solid { Box = 1, Cylinder = 2, Cone = 3, Pyramid = 4, Sphere = 5 };
void Volume(const std::string& first, const std::string& second, const std::string& third, Solid kind);

}  // namespace ordwise
