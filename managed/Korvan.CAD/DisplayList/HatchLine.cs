using System.Collections.Generic;
using Korvan.CAD.Geometry;

namespace Korvan.CAD.DisplayList;

/// <summary>
/// One family of parallel lines of a pattern, scaled and rotated already: a line through the base point, the offset
/// to the next one, and dash lengths (positive dash, negative gap, zero dot; none for a continuous line).
/// </summary>
internal readonly record struct HatchLine(double Angle, Vec2 Base, Vec2 Offset, IReadOnlyList<double> Dashes);

/// <summary>
/// A hatched area before its lines are known: they depend on what the device can show. Rings and lines are in the plane
/// of the hatch, which the map brings onto the page.
/// </summary>
internal sealed record PatternArea(
    IReadOnlyList<Vec2[]> Rings, IReadOnlyList<HatchLine> Lines, Affine3 Map, double Elevation);
