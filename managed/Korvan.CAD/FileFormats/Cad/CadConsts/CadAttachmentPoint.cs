using Korvan.CAD.Binding;

namespace Korvan.CAD.FileFormats.Cad.CadConsts;

/// <summary>Which point of a text is at its insertion point.</summary>
[PythonEnum(EnumKind.Flag)]
public enum CadAttachmentPoint
{
    /// <summary>Top left.</summary>
    TopLeft = 1,

    /// <summary>Top center.</summary>
    TopCenter = 2,

    /// <summary>Top right.</summary>
    TopRight = 3,

    /// <summary>Middle left.</summary>
    MiddleLeft = 4,

    /// <summary>Middle center.</summary>
    MiddleCenter = 5,

    /// <summary>Middle right.</summary>
    MiddleRight = 6,

    /// <summary>Bottom left.</summary>
    BottomLeft = 7,

    /// <summary>Bottom center.</summary>
    BottomCenter = 8,

    /// <summary>Bottom right.</summary>
    BottomRight = 9,
}
