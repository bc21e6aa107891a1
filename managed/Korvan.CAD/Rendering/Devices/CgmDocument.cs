using System;
using System.Collections.Generic;
using System.IO;
using System.Linq;
using Korvan.CAD.DisplayList;
using Korvan.CAD.FileFormats.Cgm;
using Korvan.CAD.FileFormats.Cgm.Classes;
using Korvan.CAD.FileFormats.Cgm.Commands;
using Korvan.CAD.FileFormats.Cgm.Enums;
using Korvan.CAD.FileFormats.Cgm.Export;
using Korvan.CAD.Geometry;
using Korvan.CAD.ImageOptions;
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
    private const int MaxPoints = 16_000;

    /// <summary>What a point of an area takes in memory, until it is written.</summary>
    private const int BytesOfPoint = 60;

    private readonly CgmOptions _options;
    private readonly ContentBlocks _content = new();
    private readonly Action<Command> _put;
    private readonly long _bodyStart;
    private readonly List<string> _fonts = [];
    private readonly Stack<Bounds2> _clips = new();
    private readonly double _unitsPerPoint;
    private readonly PathBuffer _letters = new();
    private (Rgba Color, int Width) _line = (default, -1);
    private StrokeStyle _style;
    private Rgba? _fill;

    private CgmDocument(TextEngine engine, Page page, CgmOptions options, double unitsPerPoint)
        : base(engine, page, page.Notes, unitsPerPoint)
    {
        _options = options;
        _unitsPerPoint = unitsPerPoint;
        _style = Settings.StrokeStyle;

        // The fonts of the head are known when the body is written. So a head is written before each of both, and the
        // one before the body is dropped: it says how the body is coded.
        _put = NewWriter(_content);
        WriteHead(_put);
        _bodyStart = _content.Length;
    }

    internal static void Write(Stream output, TextEngine engine, Page page, CgmOptions options)
    {
        var document = new CgmDocument(engine, page, options, LongestSide / Math.Max(page.Width, page.Height));
        document.Play();
        document._put(new EndPicture());
        document._put(new EndMetafile());
        document.WriteHead(document.NewWriter(output));
        document._content.WriteTo(output, document._bodyStart);
        document._content.Dispose();
    }

    protected override void Line(PathBuffer path, Rgba color, double width, StrokeStyle style)
    {
        int size = Math.Max(1, Round(width));
        if (_line != (color, size))
        {
            _put(new LineColour(Direct(color)));
            _put(new LineWidth(size));
            _line = (color, size);
        }

        if (_style != style)
        {
            PutStyle(_put, style);
            _style = style;
        }

        foreach (FlatLine line in FlatLine.Of(path, Tolerance))
        {
            // A line of many points is cut into several that share their ends.
            for (int first = 0; first + 1 < line.Points.Length; first += MaxPoints - 1)
            {
                Vec2[] points = line.Points[first..Math.Min(line.Points.Length, first + MaxPoints)];
                _put(new Polyline { Points = [.. points.Select(Point)] });
            }
        }
    }

    protected override void Area(PathBuffer path, Rgba color, bool evenOdd)
    {
        List<FlatLine> rings = FlatLine.Of(path, Tolerance);
        if (rings.Count == 0)
        {
            return;
        }

        if (_fill != color)
        {
            _put(new FillColour(Direct(color)));
            _fill = color;
        }

        int all = rings.Sum(static ring => ring.Points.Length);
        Budget.VerifyRoom((long)all * BytesOfPoint);
        var set = new PolygonSet();
        set.Points.Capacity = all;
        set.Flags.Capacity = all;
        foreach (FlatLine ring in rings)
        {
            int count = ring.Closed ? ring.Points.Length - 1 : ring.Points.Length;
            for (int i = 0; i < count; i++)
            {
                set.Points.Add(Point(ring.Points[i]));
                set.Flags.Add(i + 1 == count ? PolygonSet.EdgeFlag.CloseInvisible : PolygonSet.EdgeFlag.Invisible);
            }
        }

        _put(set);
    }

    protected override void Text(in TextRun run, in Affine2 matrix, Rgba color)
    {
        if (_options.TextAsLines)
        {
            _letters.Clear();
            Engine.AddOutline(run, matrix, _letters);
            Line(_letters, Opaque(color), 1, _style);
            return;
        }

        if (!CanEncode(run.Text))
        {
            Outline(run, matrix, color);
            return;
        }

        WriteText(run, matrix, Opaque(color));
    }

    protected override void Image(PlacedImage image, in Affine2 matrix)
    {
        // Three corners: where the first pixel begins, the far end, and the end of the first line.
        _put(new CellArray
        {
            FirstCorner = Point(matrix.Point(0, 1)),
            OppositeCorner = Point(matrix.Point(1, 0)),
            LineEnd = Point(matrix.Point(1, 1)),
            CellsPerLine = image.Width,
            LineCount = image.Height,
            Cells = TopDown(image),
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

    // Interpreters of texts beyond Latin-1 are rare; those texts are drawn as shapes.
    private static bool CanEncode(string text) => text.All(static letter => letter <= 0xFF);

    private static CgmColor Direct(Rgba color) => new(Color.FromArgb(color.R, color.G, color.B));

    private Action<Command> NewWriter(Stream stream) =>
        _options.Encoding == CgmFileFormat.ClearText ? new DefaultClearTextWriter(stream).WriteCommand
            : new DefaultBinaryWriter(stream).WriteCommand;

    private CgmPoint Point(Vec2 p) => new(Round(p.X), Round(Height - p.Y));

    private void ClipTo(Bounds2? box)
    {
        if (box is Bounds2 region)
        {
            _put(new ClipRectangle(Point(new Vec2(region.MinX, region.MaxY)),
                Point(new Vec2(region.MaxX, region.MinY))));
        }

        _put(new ClipIndicator(box is not null));
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
        _put(new TextFontIndex { Index = font + 1 });
        _put(new TextColour(Direct(color)));
        _put(new CharacterHeight(Math.Max(1, Round(cap * up))));

        // Only the directions and the proportion of the lengths count; their y runs up.
        const int length = 10_000;
        double unit = length / Math.Max(up, across);
        _put(new CharacterOrientation
        {
            UpX = Round(unit * map.Xy),
            UpY = Round(unit * -map.Yy),
            BaseX = Round(unit * map.Xx),
            BaseY = Round(unit * -map.Yx),
        });
        _put(new RestrictedText
        {
            ExtentWidth = Math.Max(1, Round(width)),
            ExtentHeight = Math.Max(1, Round(cap * up)),
            Position = Point(map.Point(0, 0)),
            Content = text,
        });
    }

    /// <summary>The pixels on the colour of the page, the upper line first.</summary>
    private int[] TopDown(PlacedImage image)
    {
        byte[] rows = BottomUp(image);
        int stride = rows.Length / image.Height;
        int[] pixels = new int[image.Width * image.Height];
        for (int y = 0; y < image.Height; y++)
        {
            ReadOnlySpan<byte> row = rows.AsSpan((image.Height - 1 - y) * stride, image.Width * 3);
            for (int x = 0; x < image.Width; x++)
            {
                pixels[(y * image.Width)
                    + x] = (0xFF << 24) | (row[(3 * x) + 2] << 16) | (row[(3 * x) + 1] << 8) | row[3 * x];
            }
        }

        return pixels;
    }

    private void WriteHead(Action<Command> put)
    {
        const int version = 3;
        string name = CanEncode(Name) ? Name : "page";
        put(new BeginMetafile(name));
        put(new MetafileVersion(version));
        put(new MetafileDescription("korvan.cad"));
        put(new VdcType { Value = VdcType.Type.Integer });
        put(new RealPrecision { Value = Precision.Floating32 });
        put(new MetafileElementList { Elements = ["DRAWINGPLUS"] });
        if (_fonts.Count > 0)
        {
            put(new FontList { Fonts = _fonts });
        }

        WritePictureHead(put, name);
    }

    private void WritePictureHead(Action<Command> put, string name)
    {
        put(new BeginPicture(name));
        put(new ScalingMode
        {
            Value = ScalingMode.Mode.Metric,
            MetricScaleFactor = MillimetresPerPoint / _unitsPerPoint
        });
        put(new ColourSelectionMode { Value = ColourSelectionMode.Type.Direct });
        put(new LineWidthSpecificationMode { Value = SpecificationMode.Absolute });
        put(new VdcExtent(new CgmPoint(), new CgmPoint(Round(Width), Round(Height))));
        put(new BackgroundColour(Direct(Settings.Background)));
        put(new BeginPictureBody());
        put(new InteriorStyle { Value = InteriorStyle.Style.Solid });
        PutStyle(put, Settings.StrokeStyle);
    }

    private static void PutStyle(Action<Command> put, StrokeStyle style)
    {
        LineCapIndicator cap = style.Cap switch
        {
            LineCaps.Butt => LineCapIndicator.Butt,
            LineCaps.Square => LineCapIndicator.ProjectingSquare,
            _ => LineCapIndicator.Round,
        };
        JoinIndicator join = style.Join switch
        {
            LineJoins.Miter => JoinIndicator.Mitre,
            LineJoins.Bevel => JoinIndicator.Bevel,
            _ => JoinIndicator.Round,
        };
        put(new FileFormats.Cgm.Commands.LineCap { Cap = cap });
        put(new LineJoin { Join = join });
    }
}
