using Korvan.CAD.Binding;

namespace Korvan.CAD.FileFormats.Cad.CadConsts;

/// <summary>The kind of a hatch boundary; values are combined.</summary>
[PythonEnum(EnumKind.Flag)]
public enum CadBoundaryPathTypeFlag
{
    /// <summary>A path of edges.</summary>
    Default = 0,

    /// <summary>An outer boundary.</summary>
    External = 1,

    /// <summary>A path of straight lines and arcs.</summary>
    Polyline = 2,

    /// <summary>Found from picked points.</summary>
    Derived = 4,

    /// <summary>Around a text.</summary>
    Textbox = 8,

    /// <summary>The outermost boundary.</summary>
    Outermost = 16,
}
