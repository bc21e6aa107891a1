using System.Collections.Generic;
using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects;

/// <summary>Carries the clipping boundaries of images in drawing databases.</summary>
internal static class RasterClip
{
    private const int Rectangle = 1;

    internal static void Exchange(BitExchange fields, int type, IList<Cad2DPoint> points)
    {
        int count = type == Rectangle ? 2 : fields.CountLong(points.Count);
        for (int i = 0; i < count; i++)
        {
            fields.RawPoint2(i < points.Count || fields.IsReading ? fields.Item(points, i) : new Cad2DPoint());
        }
    }
}
