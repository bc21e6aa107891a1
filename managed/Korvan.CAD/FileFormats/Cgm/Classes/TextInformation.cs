using System;

namespace Korvan.CAD.FileFormats.Cgm.Classes;

/// <summary>A text of a picture, joined from its strings, with its position, height and font.</summary>
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

    /// <summary>Gets the position that the text is aligned to.</summary>
    public CgmPoint Position { get; }

    /// <summary>Gets the character height, from the base line to the cap line, in VDC.</summary>
    public double Height { get; }

    /// <summary>Gets the angle of the base line in degrees, counterclockwise from the X axis.</summary>
    public double Angle { get; }

    /// <summary>Gets the font name in the file; empty when the file names none.</summary>
    public string FontName { get; }

    /// <inheritdoc/>
    public override string ToString() => FormattableString.Invariant($"'{Text}' at {Position}");
}
