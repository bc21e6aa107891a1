using System;
using System.Collections.Generic;
using System.Linq;
using System.Text;
using Korvan.CAD.DisplayList;
using Korvan.CAD.FileFormats.Cgm.Commands;
using Korvan.CAD.Geometry;
using Korvan.CAD.Rendering.Scene;
using Horizontal = Korvan.CAD.FileFormats.Cgm.Commands.TextAlignment.HorizontalAlignmentType;
using TextElement = Korvan.CAD.FileFormats.Cgm.Commands.Text;
using Vertical = Korvan.CAD.FileFormats.Cgm.Commands.TextAlignment.VerticalAlignmentType;

namespace Korvan.CAD.Rendering.Metafile;

/// <content>Text: the runs are collected up to the final one, aligned as a whole and drawn.</content>
internal sealed partial class CgmInterpreter
{
    /// <summary>The top line and the bottom line relative to the base line, in character heights.</summary>
    private const double TopShare = 1.25;
    private const double BottomShare = -0.3;

    private PendingText? _text;

    /// <summary>A run of text in one style; lengths are in VDC.</summary>
    private readonly record struct Piece(
        string Text, int Font, double Height, double Expansion, double Spacing, Rgba Color);

    /// <summary>A text whose final run may not have been read yet.</summary>
    private sealed class PendingText(Vec2 position, TextState style, Vec2? box)
    {
        internal Vec2 Position => position;

        /// <summary>The style of the first run, which places the whole text.</summary>
        internal TextState Style => style;

        /// <summary>The sides of the parallelogram of restricted text.</summary>
        internal Vec2? Box => box;

        internal List<Piece> Pieces { get; } = [];
    }

    private static void AddTexts(Dictionary<Type, Action<CgmInterpreter, Command>> d)
    {
        On<TextElement>(d, static (i, x) => i.BeginText(x, V(x.Position), null));
        On<RestrictedText>(d, static (i, x) => i.BeginText(x, V(x.Position), new Vec2(x.ExtentWidth, x.ExtentHeight)));
        On<AppendText>(d, static (i, x) => i.AddText(x));
    }

    private void BeginText(TextCommand text, Vec2 position, Vec2? box)
    {
        FinishText();
        _text = new PendingText(position, _state.CurrentText(), box);
        AddText(text);
    }

    private void AddText(TextCommand text)
    {
        if (_text is null)
        {
            Skip("appended text without a text before it");
            return;
        }

        TextState style = _state.CurrentText();
        int font = _canvas.Engine.Font(FontNames.Find(_state.FontName(style)) with { Stroke = null });
        double height = style.HeightIn(_picture.Frame);
        string content = Printable(text.Content);
        if (content.Length > 0 && height > 0)
        {
            double expansion = style.Expansion is double stated && stated > 0 ? stated : 1;
            _text.Pieces.Add(new Piece(content, font, height, expansion, style.Spacing ?? 0, ColorOf(style.Color)));
        }

        if (text.Final == AppendText.FinalType.Final)
        {
            FinishText();
        }
    }

    private static string Printable(string content)
    {
        return content.Any(char.IsControl)
            ? new string([.. content.Where(static character => !char.IsControl(character))])
            : content;
    }

    private void FinishText()
    {
        PendingText? text = _text;
        _text = null;
        if (text is null || text.Pieces.Count == 0)
        {
            return;
        }

        EnsureClip();
        (Vec2 along, Vec2 up) = Axes(text.Style.Orientation);
        Vec2 at = text.Position;
        Affine2 frame = _map * new Affine2(along.X, along.Y, up.X, up.Y, at.X, at.Y);
        if (text.Style.Path is TextPath.Type.Up or TextPath.Type.Down)
        {
            DrawColumn(text, frame);
        }
        else
        {
            DrawLineOfText(text, frame);
        }
    }

    /// <summary>
    /// The directions of the base line and of upright strokes. Only the proportion of the two vectors counts: it makes
    /// characters wider or narrower (ISO/IEC 8632-1, 7.7.16).
    /// </summary>
    private static (Vec2 Along, Vec2 Up) Axes(CharacterOrientation? orientation)
    {
        Vec2 up = orientation is null ? new Vec2(0, 1) : new Vec2(orientation.UpX, orientation.UpY);
        Vec2 along = orientation is null ? new Vec2(1, 0) : new Vec2(orientation.BaseX, orientation.BaseY);
        double length = up.Length;
        return length > 0 && along.Length > 0
            ? (along * (1 / length), up * (1 / length))
            : (new Vec2(1, 0), new Vec2(0, 1));
    }

    private void DrawLineOfText(PendingText text, in Affine2 frame)
    {
        bool isReversed = text.Style.Path == TextPath.Type.Left;
        List<Piece> pieces = isReversed
            ? [.. text.Pieces.Select(static piece => piece with { Text = Reversed(piece.Text) }).Reverse()]
            : text.Pieces;
        double width = 0;
        double height = 0;
        foreach (Piece piece in pieces)
        {
            width += Advance(piece);
            height = Math.Max(height, piece.Height);
        }

        Vec2 fit = Fit(text, width, height);
        Affine2 line = frame * new Affine2(
            fit.X, 0, 0, fit.Y, -width * fit.X * LeftShare(text.Style, isReversed), -Rise(text.Style, height) * fit.Y);
        double at = 0;
        foreach (Piece piece in pieces)
        {
            Draw(piece, piece.Text, line * new Affine2(1, 0, 0, 1, at, 0));
            at += Advance(piece);
        }
    }

    /// <summary>Draws characters one above the other, each centred in the column.</summary>
    private void DrawColumn(PendingText text, in Affine2 frame)
    {
        List<(Piece Piece, string Character)> characters =
        [
            .. text.Pieces.SelectMany(
                static piece => piece.Text.EnumerateRunes(), static (piece, rune) => (piece, rune.ToString())),
        ];
        double widest = 0;
        double total = 0;
        foreach ((Piece piece, string character) in characters)
        {
            widest = Math.Max(widest, Advance(piece with { Text = character, Spacing = 0 }));
            total += StepOf(piece);
        }

        bool isDown = text.Style.Path == TextPath.Type.Down;
        double capital = text.Pieces.Max(static piece => piece.Height);
        double height = total - StepOf(characters[^1].Piece) + capital;
        double left = HorizontalShare(text.Style) switch { null => 0, double share => (0.5 - share) * widest };
        double bottom = -ColumnRise(text.Style, isDown) * height;
        double at = isDown ? bottom + height - capital : bottom;
        foreach ((Piece piece, string character) in characters)
        {
            double width = Advance(piece with { Text = character, Spacing = 0 });
            Draw(piece with { Spacing = 0 }, character, frame * new Affine2(1, 0, 0, 1, left - (width / 2), at));
            at += isDown ? -StepOf(piece) : StepOf(piece);
        }
    }

    private static double StepOf(in Piece piece) => piece.Height * (TopShare - BottomShare + piece.Spacing);

    private void Draw(in Piece piece, string content, in Affine2 frame)
    {
        double em = EmOf(piece);
        Affine2 matrix = frame * new Affine2(em * piece.Expansion, 0, 0, em, 0, 0);
        _canvas.Text(
            content, piece.Font, matrix, CharacterSpacing(piece), new Pen { Color = piece.Color, Layer = _layer });
    }

    private double EmOf(in Piece piece) => piece.Height / _canvas.Engine.CapRatio(piece.Font);

    /// <summary>The character spacing in ems of the run; the attribute is in character heights.</summary>
    private double CharacterSpacing(in Piece piece) =>
        piece.Spacing * _canvas.Engine.CapRatio(piece.Font) / piece.Expansion;

    private double Advance(in Piece piece) =>
        _canvas.Engine.Advance(piece.Font, piece.Text, CharacterSpacing(piece)) * EmOf(piece) * piece.Expansion;

    /// <summary>How the text is stretched into the parallelogram of restricted text.</summary>
    private static Vec2 Fit(PendingText text, double width, double height)
    {
        if (text.Box is not Vec2 box || !(width > 0) || !(Math.Abs(box.X) > 0) || !(Math.Abs(box.Y) > 0))
        {
            return new Vec2(1, 1);
        }

        RestrictedTextType.Type type = text.Style.Restriction;
        bool isAll = type is RestrictedTextType.Type.BoxedAll or RestrictedTextType.Type.IsotropicAll;
        double whole = isAll ? TopShare - BottomShare : 1;
        double x = Math.Abs(box.X) / width;
        double y = Math.Abs(box.Y) / (height * whole);
        double smaller = Math.Min(x, y);
        return type switch
        {
            RestrictedTextType.Type.BoxedCap or RestrictedTextType.Type.BoxedAll => new Vec2(x, y),
            RestrictedTextType.Type.IsotropicCap or RestrictedTextType.Type.IsotropicAll => new Vec2(smaller, smaller),
            RestrictedTextType.Type.Justified => new Vec2(x, Math.Min(1, y)),
            _ => new Vec2(Math.Min(1, x), Math.Min(1, y)),
        };
    }

    /// <summary>The fraction of the width that lies left of the position.</summary>
    private static double LeftShare(in TextState style, bool isReversed) =>
        HorizontalShare(style) ?? (isReversed ? 1 : 0);

    private static double? HorizontalShare(in TextState style) => style.Alignment?.Horizontal switch
    {
        Horizontal.Left => 0,
        Horizontal.Centre => 0.5,
        Horizontal.Right => 1,
        Horizontal.Continuous => style.Alignment!.ContinuousHorizontal,
        _ => null,
    };

    /// <summary>The distance of the position above the base line.</summary>
    private static double Rise(in TextState style, double height) => height * (style.Alignment?.Vertical switch
    {
        Vertical.Top => TopShare,
        Vertical.Cap => 1,
        Vertical.Half => 0.5,
        Vertical.Bottom => BottomShare,
        Vertical.Continuous => BottomShare + (style.Alignment!.ContinuousVertical * (TopShare - BottomShare)),
        _ => 0,
    });

    /// <summary>The fraction of the column that lies below the position.</summary>
    private static double ColumnRise(in TextState style, bool isDown) => style.Alignment?.Vertical switch
    {
        Vertical.Top or Vertical.Cap => 1,
        Vertical.Half => 0.5,
        Vertical.Base or Vertical.Bottom => 0,
        Vertical.Continuous => style.Alignment!.ContinuousVertical,
        _ => isDown ? 1 : 0,
    };

    private static string Reversed(string text)
    {
        var reversed = new StringBuilder(text.Length);
        foreach (Rune rune in text.EnumerateRunes().Reverse())
        {
            reversed.Append(rune);
        }

        return reversed.ToString();
    }
}
