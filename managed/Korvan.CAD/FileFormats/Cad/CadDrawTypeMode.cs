using Korvan.CAD.Binding;

namespace Korvan.CAD.FileFormats.Cad;

/// <summary>Which colours a drawing is drawn in.</summary>
[PythonEnum(EnumKind.Flag)]
public enum CadDrawTypeMode
{
    /// <summary>Everything in the draw colour of the options.</summary>
    UseDrawColor = 0,

    /// <summary>Every object in its own colour.</summary>
    UseObjectColor = 1,
}
