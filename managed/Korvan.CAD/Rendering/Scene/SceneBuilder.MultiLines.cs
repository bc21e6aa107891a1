using System;
using System.Collections.Generic;
using Korvan.CAD.FileFormats.Cad.CadConsts;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.Model;
using Korvan.CAD.Geometry;

namespace Korvan.CAD.Rendering.Scene;

/// <content>Multi-lines: parallel lines with mitred corners, breaks, caps and an optional fill.</content>
internal sealed partial class SceneBuilder
{
    private const int MlineFilled = 1;
    private const int MlineMiters = 2;
    private const int StartSquare = 16;
    private const int StartRound = 64;
    private const int EndSquare = 256;
    private const int EndRound = 1024;

    void IGeometrySink.MultiLine(CadMultiLine line)
    {
        if (line.Vertices.Count < 2)
        {
            return;
        }

        (Pen pen, LayerInfo layer, BlockContext context, _) = _current;

        _tables.MlineStyles.TryGetValue(line.StyleName, out MlineStyle? mline);
        bool closed = (line.Flags & CadMultiLineFlag.Closed) != 0;
        int elements = 0;
        line.Vertices.ForEach(v => elements = Math.Max(elements, v.ElementParameters.Count));
        if (mline != null && (mline.Flags & MlineFilled) != 0 && elements > 1)
        {
            FillMultiLine(line, elements, closed, mline, pen, layer, context);
        }

        for (int e = 0; e < elements; e++)
        {
            Pen own = pen;
            if (mline != null && e < mline.Elements.Count)
            {
                MlineElement element = mline.Elements[e];
                own = _pens.Colored(own, element.Color, pen.Color.A, layer, context);
                own.Pattern = _pens.PatternOf(element.LineType, layer, context) ?? pen.Pattern;
            }

            var path = new PathPen(_canvas.NewPath(), context.Map);
            int segments = closed ? line.Vertices.Count : line.Vertices.Count - 1;
            for (int i = 0; i < segments; i++)
            {
                AddMlinePiece(path, line.Vertices[i], line.Vertices[(i + 1) % line.Vertices.Count], e);
            }

            _canvas.Stroke(own);
        }

        if (mline != null && elements > 1)
        {
            DrawMlineJoints(line, elements, closed, mline.Flags, pen, context);
        }
    }

    private static Vec3 MlinePoint(CadMultiLineVectorBlock vertex, int element)
    {
        List<double>? lengths = element < vertex.ElementParameters.Count ? vertex.ElementParameters[element] : null;
        return vertex.Location.ToVec3() + (vertex.Miter.ToVec3() * (lengths is { Count: > 0 } ? lengths[0] : 0));
    }

    /// <summary>
    /// One line between two vertices. After the length along the mitre come lengths along the line, at which it in
    /// turn begins and breaks.
    /// </summary>
    private static void AddMlinePiece(
        in PathPen path, CadMultiLineVectorBlock from, CadMultiLineVectorBlock to, int element)
    {
        Vec3 start = MlinePoint(from, element);
        Vec3 end = MlinePoint(to, element);
        List<double>? lengths = element < from.ElementParameters.Count ? from.ElementParameters[element] : null;
        Vec3 along = from.Direction.ToVec3().Unit();
        if (lengths is not { Count: > 2 })
        {
            path.MoveTo(start);
            path.LineTo(end);
            return;
        }

        for (int i = 1; i < lengths.Count; i += 2)
        {
            path.MoveTo(start + (along * lengths[i]));
            path.LineTo(i + 1 < lengths.Count ? start + (along * lengths[i + 1]) : end);
        }
    }

    private void FillMultiLine(
        CadMultiLine line, int elements, bool closed, MlineStyle mline, in Pen pen, LayerInfo layer,
        BlockContext context)
    {
        (int low, int high) = OuterElements(line.Vertices[0], elements);
        var path = new PathPen(_canvas.NewPath(), context.Map);
        int segments = closed ? line.Vertices.Count : line.Vertices.Count - 1;
        for (int i = 0; i < segments; i++)
        {
            CadMultiLineVectorBlock a = line.Vertices[i];
            CadMultiLineVectorBlock b = line.Vertices[(i + 1) % line.Vertices.Count];
            path.MoveTo(MlinePoint(a, low));
            path.LineTo(MlinePoint(b, low));
            path.LineTo(MlinePoint(b, high));
            path.LineTo(MlinePoint(a, high));
            path.Close();
        }

        Pen fill = pen;
        fill.Color = _pens.ColorOf(mline.FillColor, layer, context, pen.Plot).WithAlpha(pen.Color.A);
        _canvas.Fill(fill, evenOdd: false);
    }

    private void DrawMlineJoints(
        CadMultiLine line, int elements, bool closed, int flags, in Pen pen, BlockContext context)
    {
        (int low, int high) = OuterElements(line.Vertices[0], elements);
        var path = new PathPen(_canvas.NewPath(), context.Map);
        int last = line.Vertices.Count - 1;
        for (int i = 0; i <= last; i++)
        {
            bool atStart = !closed && i == 0;
            bool atEnd = !closed && i == last;
            bool suppressed = (atStart && (line.Flags & CadMultiLineFlag.SuppressStartCaps) != 0)
                || (atEnd && (line.Flags & CadMultiLineFlag.SuppressEndCaps) != 0);
            int square = atStart ? StartSquare : atEnd ? EndSquare : MlineMiters;
            int round = atStart ? StartRound : atEnd ? EndRound : 0;
            Vec3 a = MlinePoint(line.Vertices[i], low);
            Vec3 b = MlinePoint(line.Vertices[i], high);
            if (!suppressed && (flags & square) != 0)
            {
                path.MoveTo(a);
                path.LineTo(b);
            }

            if (!suppressed && (flags & round) != 0)
            {
                Vec3 along = line.Vertices[atStart ? i : i - 1].Direction.ToVec3().Unit();
                Vec3 outward = along * ((b - a).Length / 2 * (atStart ? -1 : 1));
                Vec3 center = (a + b) * 0.5;
                path.MoveTo(a);
                path.EllipseTo(center, a - center, outward, 0, Math.PI);
            }
        }

        _canvas.Stroke(pen);
    }

    private static (int Low, int High) OuterElements(CadMultiLineVectorBlock vertex, int elements)
    {
        int low = 0;
        int high = 0;
        for (int e = 0; e < elements && e < vertex.ElementParameters.Count; e++)
        {
            double at = vertex.ElementParameters[e] is { Count: > 0 } own ? own[0] : 0;
            low = at < vertex.ElementParameters[low].GetOrZero() ? e : low;
            high = at > vertex.ElementParameters[high].GetOrZero() ? e : high;
        }

        return (low, high);
    }
}

internal static class MlineLengths
{
    internal static double GetOrZero(this List<double> lengths) => lengths.Count > 0 ? lengths[0] : 0;
}
