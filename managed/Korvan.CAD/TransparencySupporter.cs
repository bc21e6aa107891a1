using System;
using System.Buffers.Binary;
using Korvan.CAD.Binding;
using Korvan.CAD.Raster.Pixels;

namespace Korvan.CAD;

/// <summary>Makes one colour transparent, or composites transparent pixels over a background colour.</summary>
public class TransparencySupporter : IAdvancedBufferProcessor
{
    private Color _transparentColor;
    private Color _backgroundColor;

    /// <summary>Creates a processor that makes no changes.</summary>
    public TransparencySupporter()
    {
    }

    /// <summary>Gets or sets the colour that becomes transparent; <see cref="Color.Empty"/> for none.</summary>
    public Color TransparentColor
    {
        get => _transparentColor;
        set => _transparentColor = value;
    }

    /// <summary>Gets or sets the background colour that transparent pixels are composited over;
    /// <see cref="Color.Empty"/> for none.</summary>
    public Color BackgroundColor
    {
        get => _backgroundColor;
        set => _backgroundColor = value;
    }

    /// <summary>Gets whether a colour becomes transparent.</summary>
    public bool HasTransparentColor => !_transparentColor.IsEmpty;

    /// <summary>Gets whether transparent pixels are composited over a background colour.</summary>
    public bool HasBackgroundColor => !_backgroundColor.IsEmpty;

    /// <inheritdoc/>
    public void ProcessBuffer(byte[] buffer, int processedLength)
    {
        Verify.NotNull(buffer);
        Verify.InRange(processedLength, 0, buffer.Length);
        Change(buffer.AsSpan(0, processedLength));
    }

    /// <inheritdoc/>
    public void ProcessBlock(byte[] buffer, Rectangle rectangle, int stride)
    {
        Verify.NotNull(buffer);
        Verify.NotNegative(stride);
        for (int y = 0; y < rectangle.Height; y++)
        {
            Change(buffer.AsSpan(((rectangle.Y + y) * stride) + (rectangle.X * 4), rectangle.Width * 4));
        }
    }

    private void Change(Span<byte> pixels)
    {
        int key = _transparentColor.ToArgb();
        int background = _backgroundColor.ToArgb();
        for (int at = 0; at + 4 <= pixels.Length; at += 4)
        {
            int pixel = BinaryPrimitives.ReadInt32LittleEndian(pixels[at..]);
            if (HasTransparentColor && pixel == key)
            {
                pixel = 0;
            }

            if (HasBackgroundColor)
            {
                pixel = PixelGrid.Over(pixel, background);
            }

            BinaryPrimitives.WriteInt32LittleEndian(pixels[at..], pixel);
        }
    }
}
