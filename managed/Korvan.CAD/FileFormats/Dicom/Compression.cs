using System;
using Korvan.CAD.Binding;

namespace Korvan.CAD.FileFormats.Dicom;

/// <summary>Compression of the pixels of a DICOM file.</summary>
public class Compression
{
    internal const int DefaultQuality = 90;

    private int _quality = DefaultQuality;

    /// <summary>Creates settings without compression.</summary>
    public Compression()
    {
    }

    /// <summary>Creates settings of a compression.</summary>
    /// <param name="type">The compression.</param>
    public Compression(CompressionType type) => Type = type;

    /// <summary>Gets or sets the compression.</summary>
    public CompressionType Type { get; set; }

    /// <summary>Gets or sets the JPEG quality, 1 to 100; the other compressions are lossless. 90 by default.</summary>
    /// <exception cref="ArgumentOutOfRangeException">The number is out of range.</exception>
    public int Quality
    {
        get => _quality;
        set
        {
            Verify.InRange(value, 1, 100);
            _quality = value;
        }
    }
}
