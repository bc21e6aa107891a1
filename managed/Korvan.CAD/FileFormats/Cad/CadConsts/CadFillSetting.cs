using Korvan.CAD.Binding;

namespace Korvan.CAD.FileFormats.Cad.CadConsts;

/// <summary>The background of a text.</summary>
[PythonEnum(EnumKind.Flag)]
public enum CadFillSetting
{
    /// <summary>Nothing.</summary>
    Off = 0,

    /// <summary>A fill of its own colour.</summary>
    FillColor = 1,

    /// <summary>A fill in the colour of the window.</summary>
    WindowColor = 2,

    /// <summary>A frame.</summary>
    Frame = 16,
}
