using System;
using Korvan.CAD.Binding;

namespace Korvan.CAD.FileFormats.Cgm.Classes;

/// <summary>A colour of a metafile: a number in the colour table of the picture, or a colour by itself.</summary>
public sealed class CgmColor : IEquatable<CgmColor>
{
    private const int NoIndex = -1;

    /// <summary>Creates the colour of a number.</summary>
    /// <param name="index">The number in the colour table, not negative.</param>
    public CgmColor(int index)
    {
        Verify.NotNegative(index);
        Index = index;
    }

    /// <summary>Creates a colour that stands for itself.</summary>
    /// <param name="color">The colour.</param>
    public CgmColor(Color color)
    {
        Index = NoIndex;
        Color = color;
    }

    /// <summary>Gets the number in the colour table, or -1 for a colour that stands for itself.</summary>
    public int Index { get; }

    /// <summary>Gets the colour that stands for itself; empty for one of the table.</summary>
    public Color Color { get; }

    /// <summary>Gets whether the colour is one of the table.</summary>
    public bool IsIndexed => Index != NoIndex;

    /// <summary>Tells whether both colours are said in the same way.</summary>
    /// <param name="other">The colour to compare with.</param>
    /// <returns>Whether both colours are said in the same way.</returns>
    public bool Equals(CgmColor? other) => other is not null && Index == other.Index && Color.ToArgb() == other.Color.ToArgb();

    /// <inheritdoc/>
    public override bool Equals(object? obj) => Equals(obj as CgmColor);

    /// <inheritdoc/>
    public override int GetHashCode() => HashCode.Combine(Index, Color.ToArgb());

    /// <inheritdoc/>
    public override string ToString() => IsIndexed ? $"colour {Index}" : $"#{Color.ToArgb() & 0xFFFFFF:x6}";
}
