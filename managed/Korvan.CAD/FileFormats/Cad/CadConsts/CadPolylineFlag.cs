using Korvan.CAD.Binding;

namespace Korvan.CAD.FileFormats.Cad.CadConsts;

/// <summary>Properties of a polyline; values are combined.</summary>
[PythonEnum(EnumKind.Flag)]
public enum CadPolylineFlag
{
    /// <summary>An open line.</summary>
    None = 0,

    /// <summary>The last vertex is joined to the first; of a mesh, along M.</summary>
    Closed = 1,

    /// <summary>Vertices were added to fit a curve.</summary>
    CurveFit = 2,

    /// <summary>Vertices were added to fit a spline.</summary>
    SplineFit = 4,

    /// <summary>A line in space.</summary>
    Polyline3D = 8,

    /// <summary>A mesh of M by N vertices.</summary>
    PolygonMesh = 16,

    /// <summary>The mesh is closed along N.</summary>
    ClosedN = 32,

    /// <summary>A mesh of faces.</summary>
    PolyfaceMesh = 64,

    /// <summary>The line type runs on through vertices.</summary>
    Plinegen = 128,
}
