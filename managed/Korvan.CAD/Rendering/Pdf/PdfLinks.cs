using System;
using System.Collections.Generic;
using Korvan.CAD.DisplayList;
using Korvan.CAD.Geometry;
using Korvan.CAD.Rendering.Devices;

namespace Korvan.CAD.Rendering.Pdf;

/// <summary>The links of a page as annotations (ISO 32000-1, 12.5.6.5 and 12.6.4.7). Their targets are addresses of
/// known kinds, or files relative to the document; nothing that runs.</summary>
internal static class PdfLinks
{
    private static readonly HashSet<string> Schemes = ["http", "https", "ftp", "ftps", "mailto", "file"];

    /// <summary>Writes the annotations of a page, and returns their numbers.</summary>
    internal static int[] Write(PdfFile file, Page page, double unit)
    {
        var numbers = new List<int>();
        var body = new PdfBuffer();
        Affine2 map = new Affine2(1 / unit, 0, 0, -1 / unit, 0, page.Height / unit) * page.Settings.ToDevice;
        Bounds2 all = Bounds2.Of(0, 0, page.Width / unit, page.Height / unit);
        foreach (PlacedLink link in page.List.Links)
        {
            Vec2 a = map.Point(link.Area.MinX, link.Area.MinY);
            Vec2 b = map.Point(link.Area.MaxX, link.Area.MaxY);
            Bounds2 box = Bounds2.Of(a.X, a.Y, b.X, b.Y).Clip(all);
            if (box.IsEmpty || Address(link.Target) is not { } address)
            {
                continue;
            }

            int number = file.New();
            body.Cleared().Raw("<</Type/Annot/Subtype/Link/Border[0 0 0]/F 4/Rect["u8).Real(box.MinX).Raw((byte)' ')
                .Real(box.MinY).Raw((byte)' ').Real(box.MaxX).Raw((byte)' ').Real(box.MaxY)
                .Raw("]/A<</S/URI/URI"u8).Text(address).Raw(">>>>"u8);
            file.Add(number, body);
            numbers.Add(number);
        }

        return [.. numbers];
    }

    /// <summary>An address in ASCII; null for what is none, or is of another kind.</summary>
    private static string? Address(string target)
    {
        if (Uri.TryCreate(target, UriKind.Absolute, out Uri? absolute))
        {
            return Schemes.Contains(absolute.Scheme) ? absolute.AbsoluteUri : null;
        }

        bool isRelative = Uri.TryCreate(target.Replace('\\', '/'), UriKind.Relative, out Uri? relative);
        return isRelative && !target.Contains(':', StringComparison.Ordinal)
            ? Uri.EscapeDataString(relative!.OriginalString).Replace("%2F", "/", StringComparison.Ordinal)
                .Replace("%23", "#", StringComparison.Ordinal)
            : null;
    }
}
