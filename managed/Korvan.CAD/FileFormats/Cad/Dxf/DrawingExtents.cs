using System;
using System.Collections.Generic;
using Korvan.CAD.FileFormats.Cad.CadObjects;

namespace Korvan.CAD.FileFormats.Cad.Dxf;

/// <summary>The space that a drawing takes.</summary>
internal static class DrawingExtents
{
    internal static (Cad3DPoint Min, Cad3DPoint Max) OfModel(CadImage image)
    {
        return (image.Header.ExtMin, image.Header.ExtMax);
    }

    internal static int ToWhole(double from, double to)
    {
        return (int)Math.Clamp(Math.Ceiling(to - from), 0, int.MaxValue);
    }
}
