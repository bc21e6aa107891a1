using System;
using System.Collections.Generic;
using System.IO;
using Korvan.CAD.FileFormats.Cgm;
using Korvan.CAD.ImageOptions;
using Korvan.CAD.Rendering.DisplayList;
using Korvan.CAD.Rendering.Geometry;
using Korvan.CAD.Rendering.Text;

namespace Korvan.CAD.Rendering.Devices;

/// <summary>
/// Writes a page as a computer graphics metafile (ISO/IEC 8632:1999), version 3. Coordinates have 16 bits and their y
/// runs up; areas are filled by parity, and clips are rectangles.
/// </summary>
internal sealed class CgmDocument : MetafilePlayer
{
    /// <summary>The longer side of a page in units of the file.</summary>
    private const double LongestSide = 32_000;
    private const double MillimetresPerPoint = 25.4 / 72;
    private const int MostPoints = 16_000;
    private const int SameForDashes = 1;

    private readonly CgmOptions _options;
    private readonly CgmWriter _body;
    private readonly List<string> _fonts = [];
    private readonly Stack<Bounds2> _clips = new();
    private readonly double _unitsPerPoint;
    private readonly PathBuffer _letters = new();
    private (Rgba Color, int Width) _line = (default, -1);
    private LineLook _look;
    private Rgba? _fill;

    private CgmDocument(TextEngine engine, Page page, CgmOptions options, double unitsPerPoint)
        : base(engine, page, options.Notes, unitsPerPoint)
    {
        _options = options;
        _unitsPerPoint = unitsPerPoint;
        _look = page.Settings.Look;
        _body = NewWriter();
    }

    internal static void Write(Stream output, TextEngine engine, Page page, CgmOptions options)
    {
        var document = new CgmDocument(engine, page, options, LongestSide / Math.Max(page.Width, page.Height));
        document.Play();
        document.WriteHead(output);
        document._body.CopyTo(output);
        CgmWriter tail = document.NewWriter();
        Put(tail, CgmElement.EndPicture);
        Put(tail, CgmElement.EndMetafile);
        tail.CopyTo(output);
    }

    protected override void Line(PathBuffer path, Rgba color, double width, LineLook look)
    {
        int size = Math.Max(1, (int)Math.Round(width));
        if (_line != (color, size))
        {
            Put(_body, CgmElement.LineColor, w => w.Color(color));
            Put(_body, CgmElement.LineWidth, w => w.Length(size));
            _line = (color, size);
        }

        if (_look != look)
        {
            Put(_body, CgmElement.LineCap, w => Array.ForEach([CapIndex(look), SameForDashes], w.Integer));
            Put(_body, CgmElement.LineJoin, w => w.Integer(JoinIndex(look)));
            _look = look;
        }

        foreach (FlatLine line in FlatLine.Of(path, Tolerance))
        {
            // A line of many points is cut into several that share their ends.
            for (int first = 0; first + 1 < line.Points.Length; first += MostPoints - 1)
            {
                Put(_body, CgmElement.Line, w =>
                {
                    foreach (Vec2 point in line.Points.AsSpan(first, Math.Min(MostPoints, line.Points.Length - first)))
                    {
                        Point(w, point);
                    }
                });
            }
        }
    }

    protected override void Area(PathBuffer path, Rgba color, bool evenOdd)
    {
        const int invisible = 0, closeInvisible = 2;
        List<FlatLine> rings = FlatLine.Of(path, Tolerance);
        if (rings.Count == 0)
        {
            return;
        }

        if (_fill != color)
        {
            Put(_body, CgmElement.FillColor, w => w.Color(color));
            _fill = color;
        }

        Put(_body, CgmElement.PolygonSet, w =>
        {
            foreach (FlatLine ring in rings)
            {
                int count = ring.Closed ? ring.Points.Length - 1 : ring.Points.Length;
                for (int i = 0; i < count; i++)
                {
                    Point(w, ring.Points[i]);
                    bool last = i + 1 == count;
                    w.Enumeration(last ? closeInvisible : invisible, last ? "CLOSEINVIS" : "INVIS");
                }
            }
        });
    }

    protected override void Text(in TextRun run, in Affine2 matrix, Rgba color)
    {
        if (_options.TextAsLines)
        {
            _letters.Clear();
            Engine.AddOutline(run, matrix, _letters);
            Line(_letters, Opaque(color), 1, _look);
            return;
        }

        if (!CgmWriter.CanEncode(run.Text))
        {
            Outline(run, matrix, color);
            return;
        }

        WriteText(run, matrix, Opaque(color));
    }

    protected override void Image(PlacedImage image, in Affine2 matrix)
    {
        // Three corners: where the first pixel begins, the far end, and the end of the first line.
        Vec2 first = matrix.Point(0, 1);
        Vec2 far = matrix.Point(1, 0);
        Vec2 end = matrix.Point(1, 1);
        Put(_body, CgmElement.CellArray, w =>
        {
            Point(w, first);
            Point(w, far);
            Point(w, end);
            w.Integer(image.Width);
            w.Integer(image.Height);
            w.Integer(0);
            w.Cells(TopDown(image), image.Width, image.Height);
        });
    }

    protected override void PushClip(PathBuffer path, bool evenOdd)
    {
        Bounds2 box = _clips.Count > 0 ? path.Bounds.Clip(_clips.Peek()) : path.Bounds;
        if (path.Coords.Length != 8)
        {
            Notes.Add(RenderErrorCode.ClipApproximated, "regions were clipped by the boxes around them");
        }

        _clips.Push(box);
        ClipTo(box);
    }

    protected override void PopClip()
    {
        _clips.Pop();
        ClipTo(_clips.Count > 0 ? _clips.Peek() : null);
    }

    private static int Round(double value) => (int)Math.Round(Math.Clamp(value, short.MinValue, short.MaxValue));

    private static int CapIndex(LineLook look) => look.Cap switch { LineCaps.Butt => 2, LineCaps.Square => 4, _ => 3 };

    private static int JoinIndex(LineLook look) => look.Join switch { LineJoins.Miter => 2, LineJoins.Bevel => 4, _ => 3 };

    private static void Put(CgmWriter writer, CgmElement element, Action<CgmWriter>? parameters = null)
    {
        writer.Begin(element);
        parameters?.Invoke(writer);
        writer.End();
    }

    private CgmWriter NewWriter() => _options.Encoding == CgmFileFormat.ClearText ? new CgmTextWriter() : new CgmBinaryWriter();

    private void Point(CgmWriter writer, Vec2 p) => writer.Point(Round(p.X), Round(Height - p.Y));

    private void ClipTo(Bounds2? box)
    {
        if (box is Bounds2 region)
        {
            Put(_body, CgmElement.ClipRectangle, w =>
            {
                w.Point(Round(region.MinX), Round(Height - region.MaxY));
                w.Point(Round(region.MaxX), Round(Height - region.MinY));
            });
        }

        Put(_body, CgmElement.Clip, w => w.Enumeration(box is null ? 0 : 1, box is null ? "OFF" : "ON"));
    }

    private void WriteText(in TextRun run, in Affine2 matrix, Rgba color)
    {
        string family = Engine.SpecOf(run.Font).Family.Split(',')[0].Trim();
        int font = _fonts.IndexOf(family);
        if (font < 0)
        {
            font = _fonts.Count;
            _fonts.Add(family);
        }

        Affine2 map = matrix;
        string text = run.Text;
        double cap = Engine.CapRatio(run.Font);
        double up = Math.Sqrt((map.Xy * map.Xy) + (map.Yy * map.Yy));
        double across = Math.Sqrt((map.Xx * map.Xx) + (map.Yx * map.Yx));
        double width = Engine.Advance(run.Font, text, run.LetterSpacing) * across;
        Put(_body, CgmElement.TextFont, w => w.Integer(font + 1));
        Put(_body, CgmElement.TextColor, w => w.Color(color));
        Put(_body, CgmElement.CharacterHeight, w => w.Length(Math.Max(1, Round(cap * up))));
        Put(_body, CgmElement.CharacterOrientation, w =>
        {
            // Only the directions count; their y runs up.
            Direction(w, map.Xy / up, -map.Yy / up);
            Direction(w, map.Xx / across, -map.Yx / across);
        });
        Put(_body, CgmElement.RestrictedText, w =>
        {
            w.Length(Math.Max(1, Round(width)));
            w.Length(Math.Max(1, Round(cap * up)));
            Point(w, map.Point(0, 0));
            w.Enumeration(1, "FINAL");
            w.String(text);
        });
    }

    private static void Direction(CgmWriter writer, double x, double y)
    {
        const int length = 10_000;
        writer.Integer(Round(x * length));
        writer.Integer(Round(y * length));
    }

    /// <summary>The pixels on the colour of the page, red first, the upper line first.</summary>
    private byte[] TopDown(PlacedImage image)
    {
        byte[] rows = BottomUp(image);
        int stride = rows.Length / image.Height;
        byte[] pixels = new byte[image.Width * image.Height * 3];
        for (int y = 0; y < image.Height; y++)
        {
            ReadOnlySpan<byte> row = rows.AsSpan((image.Height - 1 - y) * stride, image.Width * 3);
            Span<byte> target = pixels.AsSpan(y * image.Width * 3, image.Width * 3);
            for (int x = 0; x < row.Length; x += 3)
            {
                (target[x], target[x + 1], target[x + 2]) = (row[x + 2], row[x + 1], row[x]);
            }
        }

        return pixels;
    }

    private void WriteHead(Stream output)
    {
        const int version = 3, drawingPlus = 1;
        string name = CgmWriter.CanEncode(Name) ? Name : "page";
        CgmWriter head = NewWriter();
        Put(head, CgmElement.BeginMetafile, w => w.String(name));
        Put(head, CgmElement.Version, w => w.Integer(version));
        Put(head, CgmElement.Description, w => w.String("korvan.cad"));
        Put(head, CgmElement.VdcType, w => w.Enumeration(0, "INTEGER"));
        if (_options.Encoding == CgmFileFormat.Binary)
        {
            // Reals are of single precision: floating, 9 bits of exponent with the sign, 23 of fraction.
            Put(head, CgmElement.RealPrecision, w => Array.ForEach([0, 9, 23], w.Integer));
            Put(head, CgmElement.Elements, w => Array.ForEach([1, -1, drawingPlus], w.Integer));
        }
        else
        {
            Put(head, CgmElement.Elements, w => w.String("DRAWINGPLUS"));
        }

        if (_fonts.Count > 0)
        {
            Put(head, CgmElement.FontList, w => _fonts.ForEach(w.String));
        }

        WritePictureHead(head, name);
        head.CopyTo(output);
    }

    private void WritePictureHead(CgmWriter head, string name)
    {
        Put(head, CgmElement.BeginPicture, w => w.String(name));
        Put(head, CgmElement.ScaleMode, w =>
        {
            w.Enumeration(1, "METRIC");
            w.Real(MillimetresPerPoint / _unitsPerPoint);
        });
        Put(head, CgmElement.ColorMode, w => w.Enumeration(1, "DIRECT"));
        Put(head, CgmElement.LineWidthMode, w => w.Enumeration(0, "ABSTRACT"));
        Put(head, CgmElement.VdcExtent, w =>
        {
            w.Point(0, 0);
            w.Point(Round(Width), Round(Height));
        });
        Put(head, CgmElement.Background, w => w.Color(Settings.Background));
        Put(head, CgmElement.BeginPictureBody);
        Put(head, CgmElement.InteriorStyle, w => w.Enumeration(1, "SOLID"));
        Put(head, CgmElement.LineCap, w => Array.ForEach([CapIndex(Settings.Look), SameForDashes], w.Integer));
        Put(head, CgmElement.LineJoin, w => w.Integer(JoinIndex(Settings.Look)));
    }
}
