using System.Collections.Generic;
using System.Linq;
using Korvan.CAD.FileFormats.Cad;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.CadObjects.Dictionary;
using Korvan.CAD.FileFormats.Cad.Model;
using Korvan.CAD.Geometry;

namespace Korvan.CAD.Rendering.Scene;

/// <summary>Finds the boundaries that block references are clipped to, in the coordinates of their blocks.</summary>
internal sealed class ClipBoundaries
{
    private const string Filters = "ACAD_FILTER";
    private const string Spatial = "SPATIAL";
    private const int MatrixSize = 12;

    internal static readonly ClipBoundaries None = new(null);

    private readonly ExtensionDictionaries? _owned;

    private ClipBoundaries(ExtensionDictionaries? owned) => _owned = owned;

    internal static ClipBoundaries Of(CadDrawing drawing) =>
        drawing.Objects.OfType<CadSpatialFilter>().Any()
            ? new ClipBoundaries(new ExtensionDictionaries(drawing)) : None;

    /// <summary>Returns the corners of the boundary of a block reference; null for one that is not clipped.</summary>
    internal Vec3[]? Find(CadInsertObject insert)
    {
        CadObjectBase? filters = _owned?.Entry(_owned.Of(insert), Filters);
        CadObjectBase? filter = _owned?.Entry(filters as CadDictionaryBase, Spatial);
        return filter is CadSpatialFilter { IsBoundaryShown: not 0 } spatial ? CornersOf(spatial) : null;
    }

    private static Vec3[]? CornersOf(CadSpatialFilter filter)
    {
        List<Vec2> points = filter.BoundaryPoints.ConvertAll(static p => p.ToVec2());
        if (points.Count == 2)
        {
            points = [points[0], new(points[1].X, points[0].Y), points[1], new(points[0].X, points[1].Y)];
        }

        if (points.Count < 3 || !Matrix(filter.Transform).TryInvert(out Affine3 toWorld))
        {
            return null;
        }

        Affine3 toBlock = Matrix(filter.InverseTransform) * toWorld;
        return toBlock.IsFinite ? points.ConvertAll(p => toBlock.Point(new Vec3(p.X, p.Y, 0))).ToArray() : null;
    }

    private static Affine3 Matrix(List<double> rows) => rows.Count < MatrixSize ? Affine3.Identity : new Affine3(
        new Vec3(rows[0], rows[4], rows[8]), new Vec3(rows[1], rows[5], rows[9]),
        new Vec3(rows[2], rows[6], rows[10]), new Vec3(rows[3], rows[7], rows[11]));
}
