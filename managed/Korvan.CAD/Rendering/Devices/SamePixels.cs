using System;
using System.Collections.Generic;
using Korvan.CAD.DisplayList;

namespace Korvan.CAD.Rendering.Devices;

/// <summary>Images are one where their pixels are, wherever they are placed.</summary>
internal sealed class SamePixels : IEqualityComparer<PlacedImage>
{
    private const int HashedBytes = 4096;

    public bool Equals(PlacedImage? a, PlacedImage? b) => ReferenceEquals(a, b) || (a is not null && b is not null
        && (a.Width, a.Height, a.Sharp) == (b.Width, b.Height, b.Sharp)
        && (ReferenceEquals(a.Pixels, b.Pixels) || a.Pixels.AsSpan().SequenceEqual(b.Pixels)));

    public int GetHashCode(PlacedImage image)
    {
        var hash = new HashCode();
        hash.Add((image.Width, image.Height, image.Sharp));
        hash.AddBytes(image.Pixels.AsSpan(0, Math.Min(HashedBytes, image.Pixels.Length)));
        return hash.ToHashCode();
    }
}
