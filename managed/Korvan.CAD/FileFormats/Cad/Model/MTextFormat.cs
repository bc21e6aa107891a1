using System;
using System.Collections.Generic;

namespace Korvan.CAD.FileFormats.Cad.Model;

/// <summary>A colour that inline codes give: none (the entity's), an index, or red, green and blue.</summary>
internal readonly record struct InlineColor(bool IsSet, bool IsTrueColor, int Value);

internal enum StackAlign
{
    Baseline,
    Center,
    Top,
}

internal enum ParagraphAlign
{
    Default,
    Left,
    Center,
    Right,
    Justified,
    Distributed,
}

/// <summary>The format of characters from one code to the next, which all tokens between them share.</summary>
internal sealed record MTextFormat(
    FontSpec Font,
    double Height,
    double WidthFactor,
    double ObliqueDegrees,
    double Tracking,
    InlineColor Color,
    StackAlign Align,
    bool Underline,
    bool Overline,
    bool Strike,
    bool ToleranceSymbols)
{
    /// <summary>The format where nothing is known of the entity.</summary>
    internal static readonly MTextFormat None =
        new(default, 0, 0, 0, 0, default, StackAlign.Baseline, false, false, false, false);
}

/// <summary>Indents and tabs of a paragraph, in drawing units.</summary>
internal sealed record ParagraphFormat(double First, double Left, double Right, ParagraphAlign Align,
    IReadOnlyList<TabStop> Tabs)
{
    internal static readonly ParagraphFormat Default = new(0, 0, 0, ParagraphAlign.Default, Array.Empty<TabStop>());
}

internal readonly record struct TabStop(double Position, ParagraphAlign Align);

internal enum MTextTokenKind : byte
{
    Word,
    Space,
    Tab,
    Stack,
    Paragraph,
    Column,
}

/// <summary>
/// A piece that the layout moves as one. A stack keeps its lower part and its divider: '/' a bar, '#' a slant,
/// '^' nothing.
/// </summary>
internal readonly record struct MTextToken(
    MTextTokenKind Kind, string Text, string Lower, char Divider, MTextFormat Format, ParagraphFormat Paragraph);
