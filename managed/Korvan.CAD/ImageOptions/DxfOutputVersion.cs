using Korvan.CAD.Binding;

namespace Korvan.CAD.ImageOptions;

/// <summary>The release of the drawing interchange format that is written.</summary>
[PythonEnum(EnumKind.Flag)]
public enum DxfOutputVersion
{
    /// <summary>The release that the drawing was loaded with.</summary>
    Original = 0,

    /// <summary>AC1009.</summary>
    R12 = 1,

    /// <summary>AC1015.</summary>
    R2000 = 2,

    /// <summary>AC1018.</summary>
    R2004 = 3,

    /// <summary>AC1021.</summary>
    R2007 = 4,

    /// <summary>AC1024.</summary>
    R2010 = 5,

    /// <summary>AC1027.</summary>
    R2013 = 6,

    /// <summary>AC1032.</summary>
    R2018 = 7,
}
