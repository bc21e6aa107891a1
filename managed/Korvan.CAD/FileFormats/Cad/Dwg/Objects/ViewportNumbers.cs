using System.Linq;
using Korvan.CAD.FileFormats.Cad.CadObjects;

namespace Korvan.CAD.FileFormats.Cad.Dwg.Objects;

/// <summary>Numbers the viewports of layouts, which text files state and drawing databases do not: the first is the
/// sheet itself.</summary>
internal static class ViewportNumbers
{
    private const int Off = 0x20000;

    internal static void Assign(CadBlockEntity layout, bool isActive)
    {
        short number = 1;
        foreach (CadViewport viewport in layout.Entities.OfType<CadViewport>())
        {
            viewport.ViewportStatus = (short)((viewport.StatusFlags & Off) != 0 ? 0 : isActive ? number : 1);
            viewport.ViewportId = number++;
        }
    }
}
