using System.Globalization;
using Korvan.CAD.FileFormats.Cad.Dwg.Container;
using Korvan.CAD.FileFormats.Cad.Model;
using Korvan.CAD.Input;

namespace Korvan.CAD.FileFormats.Cad.Dwg.Sections;

/// <summary>Reads the sections that a drawing database has beside its objects and variables.</summary>
internal static class PropertySections
{
    internal static void Read(DwgFile file, CadDrawing drawing)
    {
        SectionText text = new(file.Release, file.Encoding);
        DrawingProperties properties = drawing.Properties;
        if (SummaryInfoSection.Read(file.SummaryInfo, text) is { } summary)
        {
            summary.HyperlinkBase = summary.HyperlinkBase.Length > 0 ? summary.HyperlinkBase
                : drawing.Header.GetString("$HYPERLINKBASE");
            properties.SetSummary(summary, drawing.Header);
        }
        else
        {
            Report(file, "AcDb:SummaryInfo", file.SummaryInfo);
        }

        properties.AppInfo = AppInfoSection.Read(file.AppInfo, text);
        if (properties.AppInfo is null)
        {
            Report(file, "AcDb:AppInfo", file.AppInfo);
        }

        properties.RevHistory = MinorSections.ReadRevHistory(file.RevHistory, file.Release);
        properties.VbaProject = MinorSections.ReadVbaProject(file.VbaProject);
        properties.FileDependencies.AddRange(FileDependencySection.Read(file.FileDepList, text));
        drawing.DeferThumbnail(() => PreviewBitmap.From(PreviewSection.ImageOf(file.Preview), file.Source.Name));
        if (MinorSections.ReadMeasurement(file.Template, file.Release) is { } measurement)
        {
            drawing.Header.Set("$MEASUREMENT", 70, measurement.ToString(CultureInfo.InvariantCulture));
        }
    }

    private static void Report(DwgFile file, string name, byte[] section)
    {
        if (section.Length > 0)
        {
            file.Source.Report(LoadDefectCode.Truncated, name, -1, "the section ends early");
        }
    }
}
