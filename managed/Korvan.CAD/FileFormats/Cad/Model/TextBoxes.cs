using System;
using System.Collections.Generic;
using System.Linq;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.Geometry;

namespace Korvan.CAD.FileFormats.Cad.Model;

/// <summary>Measures texts by their fonts. The box lies in the plane of the text.</summary>
internal interface ITextMeasurer : IDisposable
{
    Bounds2 Measure(in TextLine text);

    Bounds2 Measure(CadMText text);

    /// <summary>Returns the box of the lines of a text, whichever letters it has.</summary>
    Bounds2 BoxOf(CadMText text);
}

/// <summary>
/// Boxes of texts within the extents of a drawing. Fonts are asked for those texts only that may reach past everything
/// else, and are not loaded where there are none.
/// </summary>
/// <param name="createMeasurer">Makes what knows fonts; null where there is no such thing.</param>
internal sealed class TextBoxes(Func<ITextMeasurer?>? createMeasurer) : IDisposable
{
    // In heights of capital letters: no character is wider, no line of text higher.
    private const double MaxCharacterWidth = 2.5;
    private const double MaxLineHeight = 4;
    private const double ApproximateCharacterWidth = 0.9;
    private const double ApproximateLineHeight = 5.0 / 3.0;

    private readonly Dictionary<Extents, List<WaitingText>> _waiting = [];
    private ITextMeasurer? _measurer;
    private bool _isApproximate;

    private ITextMeasurer? Measurer
    {
        get
        {
            if (_measurer is null && !_isApproximate)
            {
                _measurer = createMeasurer?.Invoke();
                _isApproximate = _measurer is null;
            }

            return _measurer;
        }
    }

    /// <summary>Notes a text of a box. False for one without characters.</summary>
    internal bool TryAdd(in TextLine text, Extents extents)
    {
        if (string.IsNullOrWhiteSpace(text.Shown))
        {
            return false;
        }

        TextLine line = text;
        Affine3 map = extents.Map * text.Plane * Affine3.Translation(new Vec3(0, 0, text.First.Z));
        double factor = Math.Max(1, Math.Abs(text.Source.ScaleX));
        double reach = text.Height * (MaxLineHeight + (text.Shown.Length * MaxCharacterWidth * factor));
        double fit = (text.Second - text.First).Length;
        Vec3 anchor = new(text.Anchor.X, text.Anchor.Y, 0);
        Add(extents, new WaitingText(map, anchor, reach + fit, () => Measurer?.Measure(line) ?? Approximate(line)));
        return true;
    }

    internal bool TryAdd(CadMText text, in Affine3 plane, Extents extents)
    {
        if (string.IsNullOrWhiteSpace(text.Text))
        {
            return false;
        }

        double reach = text.InitialTextHeight * (MaxLineHeight + MaxCharacterWidth) * text.Text.Length;
        reach = Math.Max(reach, text.ReferenceRectangleWidth * 2);
        Affine3 map = extents.Map * plane;
        Add(extents, new WaitingText(map, default, reach, () => Measurer?.Measure(text) ?? Approximate(text)));
        return true;
    }

    /// <summary>Returns the box of a text in its own plane.</summary>
    internal Bounds2 BoxOf(CadMText text) => Measurer?.BoxOf(text) ?? Approximate(text);

    /// <summary>Adds those of the noted texts to a box that may reach past what it holds by now.</summary>
    internal void Finish(Extents extents)
    {
        if (!_waiting.Remove(extents, out List<WaitingText>? waiting))
        {
            return;
        }

        foreach (WaitingText text in waiting)
        {
            if (text.IsWithin(extents) || text.Measure() is not { IsEmpty: false, IsFinite: true } box)
            {
                continue;
            }

            for (int corner = 0; corner < 4; corner++)
            {
                double x = (corner & 1) == 0 ? box.MinX : box.MaxX;
                extents.AddMapped(text.Map.Point(new Vec3(x, (corner & 2) == 0 ? box.MinY : box.MaxY, 0)));
            }
        }
    }

    public void Dispose() => _measurer?.Dispose();

    private void Add(Extents extents, WaitingText text)
    {
        extents.AddMapped(text.Map.Point(text.Anchor));
        if (!_waiting.TryGetValue(extents, out List<WaitingText>? waiting))
        {
            _waiting.Add(extents, waiting = []);
        }

        waiting.Add(text);
    }

    private static Bounds2 Approximate(in TextLine text)
    {
        double factor = text.Source.ScaleX > 0 ? text.Source.ScaleX : 1;
        double width = text.Shown.Length * text.Height * ApproximateCharacterWidth * factor;
        double left = text.Horizontal switch
        {
            HorizontalAlign.Center or HorizontalAlign.Middle => -width / 2,
            HorizontalAlign.Right => -width,
            _ => 0,
        };
        (double sin, double cos) = Math.SinCos(text.Rotation);
        Bounds2 box = Bounds2.Empty;
        foreach (double x in (ReadOnlySpan<double>)[left, left + width])
        {
            foreach (double y in (ReadOnlySpan<double>)[0, text.Height])
            {
                box.Add(text.Anchor.X + (x * cos) - (y * sin), text.Anchor.Y + (x * sin) + (y * cos));
            }
        }

        return box;
    }

    private static Bounds2 Approximate(CadMText text)
    {
        string[] lines = PlainText.FromMText(text.Text).Split('\n');
        double height = text.InitialTextHeight;
        double width = lines.Max(line => line.Length) * height * ApproximateCharacterWidth;
        double tall = lines.Length * height * ApproximateLineHeight;
        int attachment = Math.Clamp((int)text.AttachmentPoint, 1, 9) - 1;
        double left = -width * (attachment % 3) / 2;
        double top = tall * (attachment / 3) / 2;
        return Bounds2.Of(left, top - tall, left + width, top);
    }

    /// <summary>A text that is measured when everything else is known.</summary>
    private sealed record WaitingText(Affine3 Map, Vec3 Anchor, double Reach, Func<Bounds2> Measure)
    {
        internal bool IsWithin(Extents extents)
        {
            double scale = Math.Max(Map.AxisX.Length, Map.AxisY.Length);
            bool isLevel = Map.AxisX.Z == 0 && Map.AxisY.Z == 0;
            double reach = Reach * scale;
            return reach > 0
                && extents.Contains(Map.Point(Anchor), new Vec3(reach, reach, isLevel ? 0 : reach));
        }
    }
}
