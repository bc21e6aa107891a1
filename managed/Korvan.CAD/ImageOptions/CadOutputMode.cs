using Korvan.CAD.Binding;

namespace Korvan.CAD.ImageOptions;

/// <summary>How a drawing is put into the output.</summary>
[PythonEnum(EnumKind.Flag)]
public enum CadOutputMode
{
    /// <summary>Layouts are drawn as they look on paper.</summary>
    Render = 0,

    /// <summary>Objects are carried over one by one, where the output format has their like.</summary>
    Convert = 1,
}
