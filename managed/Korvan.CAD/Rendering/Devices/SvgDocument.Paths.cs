using System;
using Korvan.CAD.DisplayList;

namespace Korvan.CAD.Rendering.Devices;

internal sealed partial class SvgDocument
{
    /// <summary>Writes the strokes of one style with which the items begin, and returns how many they are. Opaque ones
    /// share a path: where they cross, a second one shows nothing that the first does not.</summary>
    private int WriteStrokes(ReadOnlySpan<DisplayItem> items)
    {
        ref readonly DisplayItem first = ref items[0];
        bool isOpaque = first.Color.A == byte.MaxValue;
        int verbs = first.VerbCount;
        int count = 1;
        for (; count < items.Length && IsSameStroke(first, items[count]); count++)
        {
            verbs += items[count].VerbCount;
        }

        bool isOne = count == 1 || (isOpaque && verbs <= MaxMergedVerbs);
        _writer.Raw(isOne ? "<path"u8 : "<g"u8);
        WriteStrokeStyle(first);
        _writer.Raw(isOne ? default : ">\n"u8);
        for (int at = 0; at < count;)
        {
            _writer.Raw(isOne ? " d=\""u8 : "<path d=\""u8);
            _path.Begin();
            int merged = 0;
            do
            {
                ref readonly DisplayItem item = ref items[at++];
                _path.Add(_list.VerbsOf(item), _list.CoordsOf(item), _map);
                merged += item.VerbCount;
            }
            while (isOpaque && at < count && merged + items[at].VerbCount <= MaxMergedVerbs);
            _writer.Raw("\"/>\n"u8);
        }

        _writer.Raw(isOne ? default : "</g>\n"u8);
        return count;
    }

    private static bool IsSameStroke(in DisplayItem a, in DisplayItem b) =>
        b.Kind == DisplayKind.Stroke && a.Color == b.Color && a.Layer == b.Layer && a.LineWeight == b.LineWeight
        && a.WeightInUnits == b.WeightInUnits && a.Style == b.Style && a.Dash == b.Dash
        && (a.Dash < 0 || a.DashOffset == b.DashOffset);

    private void WriteStrokeStyle(in DisplayItem item)
    {
        _writer.Raw(" stroke=\""u8);
        _writer.Color(item.Color);
        _writer.Raw((byte)'"');
        Attribute(" stroke-width"u8, _settings.WidthOf(item));
        WriteOpacity(" stroke-opacity"u8, item.Color);
        if (_list.StyleOf(item) is StrokeStyle style)
        {
            _writer.Raw(" stroke-linecap=\""u8);
            _writer.Text(style.CapKeyword);
            _writer.Raw("\" stroke-linejoin=\""u8);
            _writer.Text(style.JoinKeyword);
            _writer.Raw((byte)'"');
            if (style.Join == LineJoins.Miter)
            {
                Attribute(" stroke-miterlimit"u8, style.MiterLimit);
            }
        }

        if (item.Dash >= 0)
        {
            WriteDash(_list.DashOf(item), item.DashOffset);
        }
    }

    private void WriteDash(double[] lengths, double offset)
    {
        double scale = Math.Sqrt(Math.Abs(_map.Determinant));
        double period = 0;
        foreach (double length in lengths)
        {
            period += length * scale;
        }

        if (period < ShortestPeriod)
        {
            return;
        }

        _writer.Raw(" stroke-dasharray=\""u8);
        for (int i = 0; i < lengths.Length; i++)
        {
            _writer.Raw(i > 0 ? " "u8 : default);
            _writer.Number(lengths[i] * scale);
        }

        _writer.Raw((byte)'"');
        if (offset != 0)
        {
            Attribute(" stroke-dashoffset"u8, offset * scale);
        }
    }

    private int WriteFills(ReadOnlySpan<DisplayItem> items)
    {
        ref readonly DisplayItem first = ref items[0];
        if (first.Extra >= 0)
        {
            WriteShaded(first);
            return 1;
        }

        int count = 1;
        while (count < items.Length && IsSameFill(first, items[count]))
        {
            count++;
        }

        _writer.Raw(count == 1 ? "<path"u8 : "<g"u8);
        WriteFill(first.Color);
        _writer.Raw(first.EvenOdd ? " fill-rule=\"evenodd\""u8 : default);
        _writer.Raw(count == 1 ? default : ">\n"u8);
        foreach (ref readonly DisplayItem item in items[..count])
        {
            _writer.Raw(count == 1 ? default : "<path"u8);
            WriteData(item);
            _writer.Raw("/>\n"u8);
        }

        _writer.Raw(count == 1 ? default : "</g>\n"u8);
        return count;
    }

    private static bool IsSameFill(in DisplayItem a, in DisplayItem b) =>
        b.Kind == DisplayKind.Fill && b.Extra < 0 && a.Color == b.Color && a.Layer == b.Layer && a.EvenOdd == b.EvenOdd;

    private void WriteShaded(in DisplayItem item)
    {
        Gradient gradient = _list.GradientOf(item);
        ReadOnlySpan<byte> kind = gradient.Radial ? "radialGradient"u8 : "linearGradient"u8;
        _writer.Raw((byte)'<');
        _writer.Raw(kind);
        _writer.Raw(" id=\"gradient-"u8);
        WriteWhole(++_gradients);
        _writer.Raw("\" gradientUnits=\"userSpaceOnUse\""u8);
        if (gradient.Radial)
        {
            _writer.Raw(" cx=\"0\" cy=\"0\" r=\"1\""u8);
            Attribute(" fx"u8, gradient.FocusX);
            Attribute(" fy"u8, gradient.FocusY);
        }
        else
        {
            _writer.Raw(" x1=\"-1\" y1=\"0\" x2=\"1\" y2=\"0\""u8);
        }

        _writer.Raw(" gradientTransform=\""u8);
        _writer.Matrix(_map * gradient.Matrix);
        _writer.Raw("\">"u8);
        foreach (GradientStop stop in gradient.Stops)
        {
            _writer.Raw("<stop"u8);
            Attribute(" offset"u8, stop.Offset);
            _writer.Raw(" stop-color=\""u8);
            _writer.Color(stop.Color);
            _writer.Raw((byte)'"');
            WriteOpacity(" stop-opacity"u8, stop.Color);
            _writer.Raw("/>"u8);
        }

        _writer.Raw("</"u8);
        _writer.Raw(kind);
        _writer.Raw(">\n<path fill=\"url(#gradient-"u8);
        WriteWhole(_gradients);
        _writer.Raw(")\""u8);
        _writer.Raw(item.EvenOdd ? " fill-rule=\"evenodd\""u8 : default);
        WriteData(item);
        _writer.Raw("/>\n"u8);
    }
}
