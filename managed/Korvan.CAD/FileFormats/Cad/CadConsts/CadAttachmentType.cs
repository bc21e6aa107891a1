using Korvan.CAD.Binding;

namespace Korvan.CAD.FileFormats.Cad.CadConsts;

/// <summary>How a text of a leader is attached at its side.</summary>
[PythonEnum(EnumKind.Flag)]
public enum CadAttachmentType
{
    /// <summary>At the top of the first line.</summary>
    Top = 0,

    /// <summary>At the middle of the first line.</summary>
    MiddleOfTop = 1,

    /// <summary>At the middle of the text.</summary>
    Middle = 2,

    /// <summary>At the middle of the last line.</summary>
    MiddleOfBottom = 3,

    /// <summary>At the bottom of the last line.</summary>
    Bottom = 4,
}
