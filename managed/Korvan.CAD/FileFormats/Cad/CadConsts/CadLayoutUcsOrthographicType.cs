using Korvan.CAD.Binding;

namespace Korvan.CAD.FileFormats.Cad.CadConsts;

/// <summary>The orthographic direction of a coordinate system.</summary>
[PythonEnum(EnumKind.Flag)]
public enum CadLayoutUcsOrthographicType
{
    /// <summary>None.</summary>
    NotOrthographic = 0,

    /// <summary>From above.</summary>
    Top = 1,

    /// <summary>From below.</summary>
    Bottom = 2,

    /// <summary>From the front.</summary>
    Front = 3,

    /// <summary>From the back.</summary>
    Back = 4,

    /// <summary>From the left.</summary>
    Left = 5,

    /// <summary>From the right.</summary>
    Right = 6,
}
