using System.Collections.Generic;
using Korvan.CAD.FileFormats.Cad;
using Korvan.CAD.Geometry;

namespace Korvan.CAD.Rendering.Scene;

/// <summary>
/// What a multi-leader shows: its lines with their landings, and a text or a block. The entity nests its data in
/// braces: the context holds leaders, and these hold lines.
/// </summary>
internal sealed class MultiLeader
{
    private const string ContextStart = "CONTEXT_DATA{";
    private const string LeaderStart = "LEADER{";
    private const string LineStart = "LEADER_LINE{";

    internal List<Leader> Leaders { get; } = [];

    internal bool HasText { get; private set; }

    internal string Text { get; private set; } = string.Empty;

    internal ulong TextStyle { get; private set; }

    internal Vec3 TextPoint { get; private set; }

    internal Vec3 TextDirection { get; private set; } = Vec3.UnitX;

    internal Vec3 Normal { get; private set; } = Vec3.UnitZ;

    internal double TextHeight { get; private set; }

    internal double TextWidth { get; private set; }

    internal double LineSpacing { get; private set; } = 1;

    internal int TextAttachment { get; private set; } = 1;

    internal uint TextColor { get; private set; } = RawColor.ByBlock;

    internal bool HasBlock { get; private set; }

    internal ulong BlockRecord { get; private set; }

    internal Vec3 BlockPoint { get; private set; }

    internal Vec3 BlockScale { get; private set; } = new(1, 1, 1);

    internal double BlockRotation { get; private set; }

    internal double ArrowSize { get; private set; }

    internal uint LineColor { get; private set; } = RawColor.ByBlock;

    /// <summary>0 no lines, 1 straight ones, 2 splines.</summary>
    internal int LineType { get; private set; } = 1;

    internal bool HasLanding { get; private set; } = true;

    internal static MultiLeader Read(IReadOnlyList<CadCodeValue> tags)
    {
        var result = new MultiLeader();
        var cursor = new TagCursor(tags);
        while (cursor.Next())
        {
            if (cursor.Code == 300 && cursor.Text == ContextStart)
            {
                result.ReadContext(cursor);
            }
            else
            {
                result.ReadOwn(cursor);
            }
        }

        return result;
    }

    private void ReadOwn(TagCursor cursor)
    {
        switch (cursor.Code)
        {
            case 91:
                LineColor = unchecked((uint)cursor.Integer);
                break;
            case 170:
                LineType = cursor.Integer;
                break;
            case 290:
                HasLanding = cursor.Integer != 0;
                break;
        }
    }

    private void ReadContext(TagCursor cursor)
    {
        while (cursor.Next() && cursor.Code != 301)
        {
            switch (cursor.Code)
            {
                case 302 when cursor.Text == LeaderStart:
                    Leaders.Add(ReadLeader(cursor));
                    break;
                case 304:
                    Text = cursor.Text;
                    break;
                case 290:
                    HasText = cursor.Integer != 0;
                    break;
                case 296:
                    HasBlock = cursor.Integer != 0;
                    break;
                case 340:
                    TextStyle = TextStyle == 0 ? cursor.Handle : TextStyle;
                    break;
                case 341:
                    BlockRecord = cursor.Handle;
                    break;
                default:
                    ReadContent(cursor);
                    break;
            }
        }
    }

    private void ReadContent(TagCursor cursor)
    {
        switch (cursor.Code)
        {
            case 11:
                Normal = cursor.Point();
                break;
            case 12:
                TextPoint = cursor.Point();
                break;
            case 13:
                TextDirection = cursor.Point();
                break;
            case 15:
                BlockPoint = cursor.Point();
                break;
            case 16:
                BlockScale = cursor.Point();
                break;
            case 41:
                TextHeight = cursor.Number;
                break;
            case 43:
                TextWidth = cursor.Number;
                break;
            case 45:
                LineSpacing = cursor.Number;
                break;
            case 46:
                BlockRotation = cursor.Number;
                break;
            case 90:
                TextColor = unchecked((uint)cursor.Integer);
                break;
            case 140:
                ArrowSize = cursor.Number;
                break;
            case 171:
                TextAttachment = cursor.Integer;
                break;
        }
    }

    private static Leader ReadLeader(TagCursor cursor)
    {
        var leader = new Leader();
        while (cursor.Next() && cursor.Code != 303)
        {
            switch (cursor.Code)
            {
                case 304 when cursor.Text == LineStart:
                    leader.Lines.Add(ReadLine(cursor));
                    break;
                case 10:
                    leader.Landing = cursor.Point();
                    break;
                case 11:
                    leader.Direction = cursor.Point();
                    break;
                case 40:
                    leader.Length = cursor.Number;
                    break;
            }
        }

        return leader;
    }

    private static List<Vec3> ReadLine(TagCursor cursor)
    {
        var points = new List<Vec3>();
        while (cursor.Next() && cursor.Code != 305)
        {
            if (cursor.Code == 10)
            {
                points.Add(cursor.Point());
            }
        }

        return points;
    }

    internal sealed class Leader
    {
        internal List<List<Vec3>> Lines { get; } = [];

        internal Vec3 Landing { get; set; }

        internal Vec3 Direction { get; set; }

        internal double Length { get; set; }
    }
}

/// <summary>Colours that entities keep as one number: the first byte tells what the others mean.</summary>
internal static class RawColor
{
    internal const uint ByBlock = 0xc1000000;

    internal static DrawingColor Decode(uint raw) => (raw >> 24) switch
    {
        0xc1 => new DrawingColor(AciPalette.ByBlock),
        0xc2 => new DrawingColor(0, (int)(raw & 0xffffff)),
        0xc3 => new DrawingColor((int)(raw & 0xff)),
        _ => new DrawingColor(AciPalette.ByLayer),
    };
}
