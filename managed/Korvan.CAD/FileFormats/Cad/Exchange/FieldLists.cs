using System.Collections.Generic;
using Korvan.CAD.FileFormats.Cad.CadObjects;

namespace Korvan.CAD.FileFormats.Cad.Exchange;

/// <summary>Points that repeat one group code: each X begins a point.</summary>
internal static class FieldLists
{
    internal static bool TryRead(int code, int first, IList<Cad3DPoint> points, FieldReader reader)
    {
        if (code == first)
        {
            points.Add(new Cad3DPoint(reader.GetDouble(), 0, 0));
        }
        else if (code == first + 10 && points.Count > 0)
        {
            points[^1].Y = reader.GetDouble();
        }
        else if (code == first + 20 && points.Count > 0)
        {
            points[^1].Z = reader.GetDouble();
        }
        else
        {
            return false;
        }

        return true;
    }

    internal static bool TryRead(int code, int first, IList<Cad2DPoint> points, FieldReader reader)
    {
        if (code == first)
        {
            points.Add(new Cad2DPoint(reader.GetDouble(), 0));
        }
        else if (code == first + 10 && points.Count > 0)
        {
            points[^1].Y = reader.GetDouble();
        }
        else
        {
            return false;
        }

        return true;
    }
}
