using Korvan.CAD.Binding;

namespace Korvan.CAD.FileFormats.Cad.CadConsts;

/// <summary>Shadows of an object.</summary>
[PythonEnum(EnumKind.Flag)]
public enum CadShadowMode
{
    /// <summary>It casts shadows and shows those of others.</summary>
    CastsAndReceives = 0,

    /// <summary>It casts shadows.</summary>
    Casts = 1,

    /// <summary>It shows the shadows of others.</summary>
    Receives = 2,

    /// <summary>It does neither.</summary>
    Ignores = 3,
}
