using Korvan.CAD.Binding;

namespace Korvan.CAD.ImageOptions;

/// <summary>How a drawing is converted to the output.</summary>
[PythonEnum(EnumKind.Flag)]
public enum CadOutputMode
{
    /// <summary>Layouts are rendered as they appear on paper.</summary>
    Render = 0,

    /// <summary>Objects are converted one by one to the corresponding objects of the output format.</summary>
    Convert = 1,
}
