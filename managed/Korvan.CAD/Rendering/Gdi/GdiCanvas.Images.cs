using System;
using System.Buffers.Binary;
using Korvan.CAD.DisplayList;
using Korvan.CAD.Geometry;

namespace Korvan.CAD.Rendering.Gdi;

/// <summary>A part of a bitmap, in pixels from its upper left corner; without size for the whole.</summary>
internal readonly record struct GdiPart(double Left, double Top, double Width, double Height);

/// <content>Bitmaps and gradients.</content>
internal sealed partial class GdiCanvas
{
    private const uint Blackness = 0x000042;
    private const uint Whiteness = 0xFF0062;
    private const uint CopyPattern = 0xF00021;
    private const uint SourceAnd = 0x8800C6;
    private const uint SourceOr = 0xEE0086;

    /// <summary>Fills a box as an operation without a source says.</summary>
    internal void PatternBox(double left, double top, double right, double bottom, uint operation)
    {
        GdiBrush brush = State.Brush;
        switch (operation)
        {
            case Blackness:
                State.Brush = new GdiBrush(Rgba.Black);
                break;
            case Whiteness:
                State.Brush = new GdiBrush(Rgba.White);
                break;
            case not CopyPattern:
                return;
        }

        FillBox(left, top, right, bottom);
        State.Brush = brush;
    }

    /// <summary>Draws a part of a bitmap into a box, whose sides may be exchanged to mirror it. The header is that with
    /// colours and masks.</summary>
    internal void Bitmap(
        ReadOnlySpan<byte> header, ReadOnlySpan<byte> bits, Vec2 corner, Vec2 size, GdiPart part, uint operation,
        double opacity = 1)
    {
        if (FileOf(header, bits) is not { } file || _target.Decode(file) is not { } image)
        {
            return;
        }

        Budget.Step(1 + (image.Pixels.Length / 4096));
        part = part.Width == 0 || part.Height == 0 ? new GdiPart(0, 0, image.Width, image.Height) : part;
        Vec2 pixel = new(size.X / part.Width, size.Y / part.Height);

        // From the unit square of the whole image, y up, to logical coordinates.
        var place = new Affine2(
            image.Width * pixel.X, 0, 0, -image.Height * pixel.Y, corner.X - (part.Left * pixel.X),
            corner.Y + ((image.Height - part.Top) * pixel.Y));
        PathBuffer box = Box(corner.X, corner.Y, corner.X + size.X, corner.Y + size.Y);
        bool isPart = part != new GdiPart(0, 0, image.Width, image.Height);
        SetClips();
        if (isPart)
        {
            List.PushClip(box, evenOdd: false);
        }

        byte[] pixels = operation switch
        {
            SourceAnd => Masked(image.Pixels, clear: 255),
            SourceOr => Masked(image.Pixels, clear: 0),
            _ => image.Pixels,
        };
        List.Image(
            image with { Pixels = pixels, Matrix = Map * place, Opacity = opacity }, _target.Layer, box.Bounds);
        if (isPart)
        {
            List.PopClip();
        }

        Drawn++;
    }

    /// <summary>Fills a box with a gradient from its left to its right side, or from its top to its bottom.</summary>
    internal void Gradient(Vec2 from, Vec2 to, Rgba first, Rgba last, bool isAcross)
    {
        Affine2 map = Map;
        Vec2 middle = (from + to) * 0.5;
        Vec2 half = (to - from) * 0.5;
        Affine2 place = isAcross
            ? new Affine2(half.X, 0, 0, half.Y, middle.X, middle.Y)
            : new Affine2(0, half.Y, half.X, 0, middle.X, middle.Y);
        var gradient = new Gradient(false, 0, 0, map * place, [new GradientStop(0, first), new GradientStop(1, last)]);
        PathBuffer box = Box(from.X, from.Y, to.X, to.Y);
        SetClips();
        List.Fill(box, first, _target.Layer, evenOdd: false, gradient);
        Drawn++;
    }

    // What the operation leaves as it is becomes transparent: white under "and", black under "or".
    private static byte[] Masked(byte[] pixels, byte clear)
    {
        byte[] masked = [.. pixels];
        for (int i = 0; i + 3 < masked.Length; i += 4)
        {
            if (masked[i] == clear && masked[i + 1] == clear && masked[i + 2] == clear)
            {
                masked.AsSpan(i, 4).Clear();
            }
        }

        return masked;
    }

    /// <summary>Makes a file of a bitmap. Compressed pixels are a file of another format.</summary>
    private static byte[]? FileOf(ReadOnlySpan<byte> header, ReadOnlySpan<byte> bits)
    {
        const int fileHeader = 14, oldHeader = 12, compressionAt = 16, jpeg = 4, png = 5;
        if (header.Length < oldHeader || bits.Length == 0)
        {
            return null;
        }

        if (header.Length > compressionAt + 4
            && BinaryPrimitives.ReadInt32LittleEndian(header[compressionAt..]) is jpeg or png)
        {
            return bits.ToArray();
        }

        byte[] file = new byte[fileHeader + header.Length + bits.Length];
        (file[0], file[1]) = ((byte)'B', (byte)'M');
        BinaryPrimitives.WriteInt32LittleEndian(file.AsSpan(2), file.Length);
        BinaryPrimitives.WriteInt32LittleEndian(file.AsSpan(10), fileHeader + header.Length);
        header.CopyTo(file.AsSpan(fileHeader));
        bits.CopyTo(file.AsSpan(fileHeader + header.Length));
        return file;
    }
}
