using Korvan.CAD.Binding;

namespace Korvan.CAD.FileFormats.Cad.CadConsts;

/// <summary>Properties of a polyline; values are combined.</summary>
[PythonEnum(EnumKind.Flag)]
public enum CadLwPolylineFlag
{
    /// <summary>An open line.</summary>
    None = 0,

    /// <summary>The last vertex is joined to the first.</summary>
    Closed = 1,

    /// <summary>The line type runs on through vertices.</summary>
    Plinegen = 128,
}
