using System;
using Korvan.CAD.Binding;

namespace Korvan.CAD.FileFormats.Cgm.Classes;

/// <summary>A colour of a metafile: an index into the colour table of the picture, or a direct colour.</summary>
public sealed class CgmColor : IEquatable<CgmColor>
{
    private const int NoIndex = -1;

    /// <summary>Creates an indexed colour.</summary>
    /// <param name="index">The index into the colour table, not negative.</param>
    public CgmColor(int index)
    {
        Verify.NotNegative(index);
        Index = index;
    }

    /// <summary>Creates a direct colour.</summary>
    /// <param name="color">The colour.</param>
    public CgmColor(Color color)
    {
        Index = NoIndex;
        Color = color;
    }

    /// <summary>Gets the index into the colour table, or -1 for a direct colour.</summary>
    public int Index { get; }

    /// <summary>Gets the direct colour; empty for an indexed one.</summary>
    public Color Color { get; }

    /// <summary>Gets whether the colour is an index into the colour table.</summary>
    public bool IsIndexed => Index != NoIndex;

    /// <summary>Returns whether both colours are the same index or the same direct colour.</summary>
    /// <param name="other">The colour to compare with.</param>
    /// <returns>Whether both colours are the same index or the same direct colour.</returns>
    public bool Equals(CgmColor? other) =>
        other is not null && Index == other.Index && Color.ToArgb() == other.Color.ToArgb();

    /// <inheritdoc/>
    public override bool Equals(object? obj) => Equals(obj as CgmColor);

    /// <inheritdoc/>
    public override int GetHashCode() => HashCode.Combine(Index, Color.ToArgb());

    /// <inheritdoc/>
    public override string ToString() => IsIndexed ? $"colour {Index}" : $"#{Color.ToArgb() & 0xFFFFFF:x6}";
}
