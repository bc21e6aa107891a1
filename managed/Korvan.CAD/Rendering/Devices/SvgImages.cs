using System.Collections.Generic;
using Korvan.CAD.DisplayList;
using Korvan.CAD.Geometry;

namespace Korvan.CAD.Rendering.Devices;

/// <summary>Writes images: each is defined once, in the unit square, and used at its places.</summary>
internal sealed class SvgImages(MarkupWriter writer, SvgResources resources, InterpolationMode interpolation)
{
    private readonly Dictionary<PlacedImage, int> _numbers = new(new SamePixels());
    private int _count;

    internal void Write(PlacedImage image, in Affine2 map)
    {
        if (image.IsPlacedOnce || !_numbers.TryGetValue(image, out int number))
        {
            number = ++_count;
            _ = image.IsPlacedOnce || _numbers.TryAdd(image, number);
            Define(image, number);
        }

        writer.Raw("<use xlink:href=\"#image-"u8);
        writer.Thousandths((long)number * MarkupWriter.Parts);
        writer.Raw("\" transform=\""u8);
        writer.Matrix(map * image.Matrix * new Affine2(1, 0, 0, -1, 0, 1));
        if (image.Opacity < 1)
        {
            writer.Raw("\" opacity=\""u8);
            writer.Number(image.Opacity);
        }

        writer.Raw("\"/>\n"u8);
    }

    private void Define(PlacedImage image, int number)
    {
        writer.Raw("<defs><image id=\"image-"u8);
        writer.Thousandths((long)number * MarkupWriter.Parts);
        writer.Raw("\" width=\"1\" height=\"1\" preserveAspectRatio=\"none\""u8);
        writer.Raw(interpolation switch
        {
            InterpolationMode.NearestNeighbor => " image-rendering=\"pixelated\""u8,
            InterpolationMode.Low => " image-rendering=\"optimizeSpeed\""u8,
            InterpolationMode.High or InterpolationMode.Bicubic or InterpolationMode.Bilinear =>
                " image-rendering=\"optimizeQuality\""u8,
            _ => image.Sharp ? " image-rendering=\"pixelated\""u8 : default,
        });
        writer.Raw(" xlink:href=\""u8);
        writer.Escaped(resources.Address(image));
        writer.Raw("\"/></defs>\n"u8);
    }
}
