using System;
using System.Collections.Generic;
using Korvan.CAD.DisplayList;

namespace Korvan.CAD.Rendering.Pdf;

/// <summary>A shading in the space of its gradient. <paramref name="Alpha"/> is its opacity; where that varies,
/// <paramref name="State"/> is a state with a mask, else 0.</summary>
internal sealed record PdfGradient(int Shading, int State, byte Alpha);

/// <summary>The gradients of a document as axial and radial shadings (ISO 32000-1, 8.7.4.5).</summary>
internal sealed class PdfGradients(PdfFile file)
{
    /// <summary>Between stops at one place, as functions are defined on intervals.</summary>
    private const double SmallestStep = 1e-5;

    private readonly Dictionary<Gradient, PdfGradient> _known = new(ReferenceEqualityComparer.Instance);
    private readonly Queue<Waiting> _waiting = [];

    /// <summary>Returns the objects of a gradient; <paramref name="map"/> is what becomes of its colours.</summary>
    internal PdfGradient Of(Gradient gradient, Func<Rgba, Rgba> map)
    {
        if (!_known.TryGetValue(gradient, out PdfGradient? objects))
        {
            GradientStop[] stops = Array.ConvertAll(gradient.Stops, stop => stop with { Color = map(stop.Color) });
            byte alpha = stops[0].Color.A;
            bool varies = !Array.TrueForAll(stops, stop => stop.Color.A == alpha);
            objects = new PdfGradient(file.New(), varies ? file.New() : 0, varies ? (byte)255 : alpha);
            _known.Add(gradient, objects);
            _waiting.Enqueue(new Waiting(objects, gradient, stops));
        }

        return objects;
    }

    /// <summary>Writes the gradients that content refers to.</summary>
    internal void Write()
    {
        while (_waiting.TryDequeue(out Waiting? one))
        {
            file.Add(one.Objects.Shading, Shading(one.Gradient, one.Stops, isMask: false));
            if (one.Objects.State > 0)
            {
                WriteMask(one.Objects.State, one.Gradient, one.Stops);
            }
        }
    }

    /// <summary>Writes a state whose mask is the opacity of a gradient, as the lightness of a group.</summary>
    private void WriteMask(int number, Gradient gradient, GradientStop[] stops)
    {
        int shading = file.New();
        int group = file.New();
        file.Add(shading, Shading(gradient, stops, isMask: true));
        var body = new PdfBuffer();
        body.Raw("/Type/XObject/Subtype/Form/BBox[-1000 -1000 1000 1000]/Group<</S/Transparency/CS/DeviceGray>>"u8)
            .Raw("/Resources<</Shading<</S "u8).Ref(shading).Raw(">>>>"u8);
        file.AddStream(group, body, "/S sh"u8);
        file.Add(number, body.Cleared().Raw("<</Type/ExtGState/SMask<</Type/Mask/S/Luminosity/G "u8).Ref(group)
            .Raw(">>>>"u8));
    }

    private static PdfBuffer Shading(Gradient gradient, GradientStop[] stops, bool isMask)
    {
        var body = new PdfBuffer();
        body.Raw(isMask ? "<</ColorSpace/DeviceGray"u8 : "<</ColorSpace/DeviceRGB"u8).Raw("/Extend[true true]"u8);
        _ = gradient.Radial
            ? body.Raw("/ShadingType 3/Coords["u8).Real(gradient.FocusX).Raw((byte)' ').Real(gradient.FocusY)
                .Raw(" 0 0 0 1]"u8)
            : body.Raw("/ShadingType 2/Coords[-1 0 1 0]"u8);
        body.Raw("/Function"u8);
        AppendFunction(body, stops, isMask);
        return body.Raw(">>"u8);
    }

    /// <summary>Adds a function from 0 to 1 that is linear between stops.</summary>
    private static void AppendFunction(PdfBuffer body, GradientStop[] stops, bool isMask)
    {
        List<GradientStop> all = [stops[0] with { Offset = 0 }];
        foreach (GradientStop stop in stops)
        {
            double offset = Math.Min(1, Math.Max(stop.Offset, all[^1].Offset + SmallestStep));
            if (offset > all[^1].Offset)
            {
                all.Add(stop with { Offset = offset });
            }
        }

        if (all[^1].Offset < 1)
        {
            all.Add(stops[^1] with { Offset = 1 });
        }

        body.Raw("<</FunctionType 3/Domain[0 1]/Functions["u8);
        for (int i = 1; i < all.Count; i++)
        {
            body.Raw("<</FunctionType 2/N 1/Domain[0 1]/C0["u8);
            AppendColor(body, all[i - 1].Color, isMask).Raw("]/C1["u8);
            AppendColor(body, all[i].Color, isMask).Raw("]>>"u8);
        }

        body.Raw("]/Bounds["u8);
        for (int i = 1; i < all.Count - 1; i++)
        {
            body.Real(all[i].Offset).Raw((byte)' ');
        }

        body.Raw("]/Encode["u8);
        for (int i = 1; i < all.Count; i++)
        {
            body.Raw("0 1 "u8);
        }

        body.Raw("]>>"u8);
    }

    private static PdfBuffer AppendColor(PdfBuffer body, Rgba color, bool isMask) =>
        isMask ? body.Fixed(PdfBuffer.Part(color.A), 3) : body.Rgb(color);

    /// <summary>A gradient that content refers to and that is not written yet.</summary>
    private sealed record Waiting(PdfGradient Objects, Gradient Gradient, GradientStop[] Stops);
}
