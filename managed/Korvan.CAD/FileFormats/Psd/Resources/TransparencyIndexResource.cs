using System;
using System.Buffers.Binary;
using Korvan.CAD.Binding;
using Korvan.CAD.CadExceptions.ImageFormats;

namespace Korvan.CAD.FileFormats.Psd.Resources;

/// <summary>The resource of the transparent palette index, number 1047.</summary>
public class TransparencyIndexResource : ResourceBlock
{
    internal const int Number = 1047;

    private int _transparencyIndex;

    /// <summary>Creates a block.</summary>
    /// <param name="transparencyIndex">The palette index, 0 to 255.</param>
    public TransparencyIndexResource(int transparencyIndex)
        : base(Number)
    {
        TransparencyIndex = transparencyIndex;
    }

    /// <summary>Gets or sets the palette index of the transparent colour, 0 to 255.</summary>
    /// <exception cref="ArgumentOutOfRangeException">The number is out of range.</exception>
    public int TransparencyIndex
    {
        get => _transparencyIndex;
        set
        {
            Verify.InRange(value, 0, 255);
            _transparencyIndex = value;
            Change();
        }
    }

    /// <inheritdoc/>
    public override byte[] ToBytes() => [0, (byte)_transparencyIndex];

    internal static TransparencyIndexResource Read(ReadOnlySpan<byte> data)
    {
        if (data.Length < 2 || BinaryPrimitives.ReadUInt16BigEndian(data) > 255)
        {
            throw new PsdImageResourceException(
                $"Resource {Number} has {data.Length} bytes; a palette index was expected.");
        }

        return new TransparencyIndexResource(BinaryPrimitives.ReadUInt16BigEndian(data));
    }
}
