using System;
using System.Collections.Generic;
using Korvan.CAD.DisplayList;
using Korvan.CAD.FileFormats.Cgm;
using Korvan.CAD.FileFormats.Cgm.Classes;
using Korvan.CAD.FileFormats.Cgm.Commands;
using Korvan.CAD.ImageOptions;
using Korvan.CAD.Rendering.Devices;

namespace Korvan.CAD.Tests.Rendering;

/// <summary>A metafile put on a page of 100 × 100 pixels, one to a unit, its lower left corner at the origin.</summary>
internal sealed class MetafilePage : IDisposable
{
    internal static readonly Rgba Red = new(255, 0, 0);
    internal static readonly Rgba Green = new(0, 255, 0);
    internal static readonly Rgba Blue = new(0, 0, 255);

    private readonly RasterPage _page;

    private MetafilePage(RasterPage page) => _page = page;

    /// <summary>The colour at a place of the picture.</summary>
    internal Rgba this[int x, int y]
    {
        get
        {
            ReadOnlySpan<byte> pixel = _page.Row(_page.Height - 1 - y).Slice(x * 4, 4);
            return new Rgba(pixel[2], pixel[1], pixel[0], pixel[3]);
        }
    }

    /// <summary>Draws commands in a picture of direct colours and absolute widths.</summary>
    internal static MetafilePage Of(params Command[] body) => Of(Image(body));

    internal static MetafilePage Of(CgmImage image, params string[] pictures)
    {
        var raster = new CadRasterizationOptions { PageWidth = 100, PageHeight = 100, Layouts = pictures };
        return new MetafilePage(Rasterizer.Draw(image, new PngOptions { VectorRasterizationOptions = raster }));
    }

    internal static CgmImage Image(params Command[] body) => Image([], [], body);

    /// <summary>A metafile of one picture, with further descriptors of it and of the picture, and elements of its
    /// body.</summary>
    internal static CgmImage Image(Command[] descriptors, Command[] picture, Command[] body)
    {
        var file = new CgmFile();
        file.Commands.AddRange([new BeginMetafile("test"), new VdcType { Value = VdcType.Type.Real }, .. descriptors]);
        file.Commands.AddRange(Picture("one", picture, body));
        file.Commands.Add(new EndMetafile());
        return new CgmImage(file);
    }

    internal static List<Command> Picture(string name, Command[] picture, Command[] body) =>
    [
        new BeginPicture(name),
        new ColourSelectionMode { Value = ColourSelectionMode.Type.Direct },
        new VdcExtent(P(0, 0), P(100, 100)),
        new LineWidthSpecificationMode { Value = CAD.FileFormats.Cgm.Enums.SpecificationMode.Absolute },
        new EdgeWidthSpecificationMode { Value = CAD.FileFormats.Cgm.Enums.SpecificationMode.Absolute },
        .. picture,
        new BeginPictureBody(),
        .. body,
        new EndPicture(),
    ];

    internal static CgmPoint P(double x, double y) => new(x, y);

    internal static CgmColor C(Rgba color) => new(Color.FromArgb(color.R, color.G, color.B));

    internal static Polyline Line(params double[] xy) => new() { Points = Points(xy) };

    internal static PolygonElement Polygon(params double[] xy) => new() { Points = Points(xy) };

    internal static PolygonElement Box(double x0, double y0, double x1, double y1) =>
        Polygon(x0, y0, x1, y0, x1, y1, x0, y1);

    internal static List<CgmPoint> Points(params double[] xy)
    {
        var points = new List<CgmPoint>();
        for (int i = 0; i < xy.Length; i += 2)
        {
            points.Add(P(xy[i], xy[i + 1]));
        }

        return points;
    }

    /// <summary>Lines of a colour and width.</summary>
    internal static Command[] Pen(Rgba color, double width) =>
        [new LineColour { Color = C(color) }, new LineWidth { Width = width }];

    internal static Command[] Solid(Rgba color) =>
        [new InteriorStyle { Value = InteriorStyle.Style.Solid }, new FillColour { Color = C(color) }];

    internal static Command[] Edge(Rgba color, double width) =>
        [new EdgeVisibility { IsVisible = true }, new EdgeColour { Color = C(color) }, new EdgeWidth { Width = width }];

    /// <summary>The box around all pixels that are not white, its upper bounds not included.</summary>
    internal (int X0, int Y0, int X1, int Y1) Foreground()
    {
        (int x0, int y0, int x1, int y1) = (int.MaxValue, int.MaxValue, 0, 0);
        for (int y = 0; y < _page.Height; y++)
        {
            for (int x = 0; x < _page.Width; x++)
            {
                if (this[x, y].Luma < 128)
                {
                    (x0, y0, x1, y1) = (Math.Min(x0, x), Math.Min(y0, y), Math.Max(x1, x + 1), Math.Max(y1, y + 1));
                }
            }
        }

        return (x0, y0, x1, y1);
    }

    public void Dispose() => _page.Dispose();
}
