using Korvan.CAD.Binding;

namespace Korvan.CAD.ImageOptions;

/// <summary>Which entities are drawn with regard to their layers.</summary>
[PythonEnum(EnumKind.Flag)]
public enum VisibilityMode
{
    /// <summary>What is shown on screen: layers that are on and thawed.</summary>
    AsScreen = 0,

    /// <summary>What is plotted: as on screen, without the layers that are marked as not plotted.</summary>
    AsPrint = 1,
}
