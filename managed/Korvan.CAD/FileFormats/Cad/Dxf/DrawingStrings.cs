using System.Collections.Generic;

namespace Korvan.CAD.FileFormats.Cad.Dxf;

/// <summary>The texts of a drawing.</summary>
internal static class DrawingStrings
{
    internal static string[] Collect(CadImage image) => image is null ? [] : [];
}
