using System.Collections.Generic;
using Korvan.CAD.FileFormats.Cad.Acis;

namespace Korvan.CAD.FileFormats.Cad.Model;

/// <content>Solids, surfaces and regions by their edges, and entities without a class.</content>
internal static partial class EntityGeometry
{
    private const string ModelerSubclass = "AcDbModelerGeometry";
    private const int TextLine = 1;
    private const int TextContinued = 3;

    /// <summary>Gives the edges of a solid to a sink as lines, arcs and splines.</summary>
    internal static void EmitEdges(AcisWireframe edges, IGeometrySink sink)
    {
        edges.Lines.ForEach(line => sink.Line(line.From, line.To, default));
        edges.Arcs.ForEach(arc => sink.EllipticArc(
            new EllipticArc(arc.Center, arc.Major, arc.Minor, arc.Start, arc.Sweep)));
        edges.Splines.ForEach(spline => sink.Spline(new SplineCurve(spline.Curve, spline.Control, [])));
        edges.Polylines.ForEach(points => sink.Polyline(points, closed: false));
    }

    private static bool EmitSolid(IReadOnlyList<string> text, byte[] binary, IGeometrySink sink)
    {
        if ((AcisReader.Read(text) ?? (binary.Length > 0 ? AcisReader.Read(binary) : null)) is not AcisWireframe edges)
        {
            return false;
        }

        sink.Edges(edges);
        return true;
    }

    private static bool EmitRaw(RawEntity entity, IGeometrySink sink)
    {
        if (entity.Kept is not KeptTags kept)
        {
            return false;
        }

        if (entity.DxfName == PolygonTags.EntityName)
        {
            var area = PolygonTags.Read(kept);
            sink.Polygon(area, area.ExtrusionDirection.ToPlane());
            return true;
        }

        return EmitSolid(TextOf(kept.Of(ModelerSubclass)), [], sink);
    }

    private static List<string> TextOf(List<CadCodeValue> tags)
    {
        List<string> lines = [];
        foreach (CadCodeValue tag in tags)
        {
            if (tag.Attribute == TextLine)
            {
                lines.Add(tag.Value);
            }
            else if (tag.Attribute == TextContinued && lines.Count > 0)
            {
                lines[^1] += tag.Value;
            }
        }

        return lines;
    }
}
