using Korvan.CAD.Binding;

namespace Korvan.CAD.FileFormats.Cad.CadConsts;

/// <summary>The direction that a text runs in.</summary>
[PythonEnum(EnumKind.Flag)]
public enum CadDrawingDirection
{
    /// <summary>In lines from left to right.</summary>
    LeftToRight = 1,

    /// <summary>In columns from top to bottom.</summary>
    TopToBottom = 3,

    /// <summary>As the text style says.</summary>
    ByStyle = 5,
}
