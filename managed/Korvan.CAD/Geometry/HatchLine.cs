using System.Collections.Generic;

namespace Korvan.CAD.Geometry;

/// <summary>
/// One family of parallel lines of a pattern, scaled and rotated already: a line through the base point, the offset
/// to the next one, and dash lengths (positive dash, negative gap, zero dot; none for a continuous line).
/// </summary>
internal readonly record struct HatchLine(double Angle, Vec2 Base, Vec2 Offset, IReadOnlyList<double> Dashes);
