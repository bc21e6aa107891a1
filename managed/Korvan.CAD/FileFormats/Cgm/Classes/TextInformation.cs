using System;

namespace Korvan.CAD.FileFormats.Cgm.Classes;

/// <summary>A text of a picture, put together from the pieces it was written in, with what it looks like.</summary>
public sealed class TextInformation
{
    internal TextInformation(string text, CgmPoint position, double height, double angle, string fontName)
    {
        Text = text;
        Position = position;
        Height = height;
        Angle = angle;
        FontName = fontName;
    }

    /// <summary>Gets the text.</summary>
    public string Text { get; }

    /// <summary>Gets the point that the text is aligned to.</summary>
    public CgmPoint Position { get; }

    /// <summary>Gets the height of capital letters in units of the coordinates.</summary>
    public double Height { get; }

    /// <summary>Gets the direction of the base line in degrees, counterclockwise from the X axis.</summary>
    public double Angle { get; }

    /// <summary>Gets the name of the font in the file; empty when the file names none.</summary>
    public string FontName { get; }

    /// <inheritdoc/>
    public override string ToString() => FormattableString.Invariant($"'{Text}' at {Position}");
}
