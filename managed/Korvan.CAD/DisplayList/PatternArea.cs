using System.Collections.Generic;
using Korvan.CAD.Geometry;

namespace Korvan.CAD.DisplayList;

/// <summary>
/// A hatched area before its lines are known: they depend on what the device can show. Rings and lines are in the plane
/// of the hatch, which the map brings onto the page.
/// </summary>
internal sealed record PatternArea(
    IReadOnlyList<Vec2[]> Rings, IReadOnlyList<HatchLine> Lines, Affine3 Map, double Elevation);
