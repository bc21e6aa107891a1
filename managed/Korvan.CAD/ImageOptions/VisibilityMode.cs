using Korvan.CAD.Binding;

namespace Korvan.CAD.ImageOptions;

/// <summary>Which entities are drawn, depending on their layers, and whether the model has plot styles.</summary>
[PythonEnum(EnumKind.Flag)]
public enum VisibilityMode
{
    /// <summary>Entities that are shown on screen: on layers that are on and not frozen.</summary>
    AsScreen = 0,

    /// <summary>Entities that are plotted: as on screen, without layers that are not plottable. The model is drawn with
    /// the plot styles of its page setup, as sheets of paper always are.</summary>
    AsPrint = 1,
}
