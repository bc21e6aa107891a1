using System;
using System.Collections.Generic;
using System.Runtime.CompilerServices;
using Korvan.CAD.DisplayList;
using Korvan.CAD.ImageOptions;
using Korvan.CAD.Rendering.Devices;

namespace Korvan.CAD.Rendering.Pdf;

/// <summary>The images of a document. One that is placed several times is written once; those of a page are written
/// after its content.</summary>
internal sealed class PdfImages(PdfFile file, bool hasTransparency)
{
    private const int Channels = 4;

    private readonly Dictionary<Key, int> _numbers = [];
    private readonly Queue<Waiting> _waiting = [];
    private readonly Queue<Packed> _packed = [];

    /// <summary>Returns the number of the object of an image.</summary>
    internal int Of(PlacedImage image, in PaintSettings settings, RenderNotes notes)
    {
        bool smooth = hasTransparency && !image.Sharp
            && settings.Interpolation is InterpolationMode.High or InterpolationMode.Bilinear
                or InterpolationMode.Bicubic;
        var key = new Key(image.Pixels, image.Width, image.Height, smooth);
        if (_numbers.TryGetValue(key, out int number))
        {
            return number;
        }

        number = file.New();
        if (!hasTransparency && (HasAlpha(image) || image.Opacity < 1))
        {
            notes.Add(RenderErrorCode.TransparencyBlended, "transparent images were mixed with the colour of the page");
        }

        var one = new Waiting(number, image, settings.Background, smooth);
        if (image.IsPlacedOnce)
        {
            Pack(one); // its pixels take more memory than what is made of them
        }
        else
        {
            _numbers.Add(key, number);
            _waiting.Enqueue(one);
        }

        return number;
    }

    /// <summary>Writes the images that content refers to.</summary>
    internal void Write()
    {
        do
        {
            while (_packed.TryDequeue(out Packed? ready))
            {
                file.AddPacked(ready.Number, ready.Entries, ready.Data);
            }

            if (_waiting.TryDequeue(out Waiting? one))
            {
                Pack(one);
            }
        }
        while (_packed.Count > 0);
    }

    private void Pack(Waiting one)
    {
        (int number, PlacedImage image, Rgba background, bool smooth) = one;
        bool hasAlpha = HasAlpha(image);
        int mask = hasAlpha && hasTransparency ? file.New() : 0;
        double opacity = hasTransparency ? 1 : Math.Clamp(image.Opacity, 0, 1);
        byte[] colors = Colors(image, opacity, background, out bool isGray);
        PdfBuffer entries = Entries(image, isGray, smooth);
        _ = mask > 0 ? entries.Raw("/SMask "u8).Ref(mask) : entries;
        PackRows(number, entries, colors, isGray ? 1 : 3, image.Width);
        if (mask > 0)
        {
            PackRows(mask, Entries(image, isGray: true, smooth), Alphas(image), 1, image.Width);
        }
    }

    private static PdfBuffer Entries(PlacedImage image, bool isGray, bool smooth)
    {
        var entries = new PdfBuffer();
        entries.Raw("/Type/XObject/Subtype/Image/BitsPerComponent 8/Width "u8).Int(image.Width).Raw("/Height "u8)
            .Int(image.Height).Raw(isGray ? "/ColorSpace/DeviceGray"u8 : "/ColorSpace/DeviceRGB"u8);
        return smooth ? entries.Raw("/Interpolate true"u8) : entries;
    }

    /// <summary>Compresses rows as differences to those above them (ISO 32000-1, 7.4.4.4).</summary>
    private void PackRows(int number, PdfBuffer entries, byte[] samples, int channels, int width)
    {
        const byte up = 2;
        int stride = width * channels;
        int rows = stride > 0 ? samples.Length / stride : 0;
        var data = new byte[rows * (stride + 1)];
        for (int y = 0; y < rows; y++)
        {
            Span<byte> row = data.AsSpan(y * (stride + 1), stride + 1);
            row[0] = up;
            for (int x = 0; x < stride; x++)
            {
                int above = y > 0 ? samples[((y - 1) * stride) + x] : 0;
                row[x + 1] = (byte)(samples[(y * stride) + x] - above);
            }
        }

        entries.Raw("/DecodeParms<</Predictor 15/Colors "u8).Int(channels).Raw("/Columns "u8).Int(width).Raw(">>"u8);
        _packed.Enqueue(new Packed(number, entries, PdfFile.Pack(data)));
    }

    /// <summary>The colours without their alpha, or blended with the background where none is kept.</summary>
    private byte[] Colors(PlacedImage image, double opacity, Rgba background, out bool isGray)
    {
        ReadOnlySpan<byte> pixels = image.Pixels;
        int count = image.Width * image.Height;
        var rgb = new byte[count * 3];
        isGray = true;
        for (int i = 0; i < count; i++)
        {
            ReadOnlySpan<byte> pixel = pixels.Slice(i * Channels, Channels);
            for (int k = 0; k < 3; k++)
            {
                byte value = pixel[2 - k];
                byte paper = k switch { 0 => background.R, 1 => background.G, _ => background.B };
                rgb[(i * 3) + k] = hasTransparency
                    ? Unpremultiplied(value, pixel[3])
                    : (byte)Math.Round((value * opacity) + (paper * (1 - (pixel[3] * opacity / 255))));
            }

            isGray &= rgb[i * 3] == rgb[(i * 3) + 1] && rgb[i * 3] == rgb[(i * 3) + 2];
        }

        if (!isGray)
        {
            return rgb;
        }

        var gray = new byte[count];
        for (int i = 0; i < count; i++)
        {
            gray[i] = rgb[i * 3];
        }

        return gray;
    }

    private static byte Unpremultiplied(byte value, byte alpha) =>
        alpha is 0 or 255 ? value : (byte)Math.Min(255, ((value * 255) + (alpha / 2)) / alpha);

    private static byte[] Alphas(PlacedImage image)
    {
        var alphas = new byte[image.Width * image.Height];
        for (int i = 0; i < alphas.Length; i++)
        {
            alphas[i] = image.Pixels[(i * Channels) + 3];
        }

        return alphas;
    }

    private static bool HasAlpha(PlacedImage image)
    {
        for (int i = 3; i < image.Pixels.Length; i += Channels)
        {
            if (image.Pixels[i] != 255)
            {
                return true;
            }
        }

        return false;
    }

    /// <summary>Images are the same when they share their pixels.</summary>
    private sealed record Key(byte[] Pixels, int Width, int Height, bool IsSmooth)
    {
        public bool Equals(Key? other) =>
            other is not null && ReferenceEquals(Pixels, other.Pixels) && Width == other.Width && Height == other.Height
                && IsSmooth == other.IsSmooth;

        public override int GetHashCode() => RuntimeHelpers.GetHashCode(Pixels);
    }

    /// <summary>An image that content refers to and that is not written yet.</summary>
    private sealed record Waiting(int Number, PlacedImage Image, Rgba Background, bool IsSmooth);

    /// <summary>A stream of an image as the file has it, which is written once no other stream is open.</summary>
    private sealed record Packed(int Number, PdfBuffer Entries, ReadOnlyMemory<byte> Data);
}
