using System.Collections.Generic;
using System.Text;
using Korvan.CAD.CadExceptions;
using Korvan.CAD.Encodings;
using Korvan.CAD.FileFormats.Cad.CadConsts;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.Dwg.AppInfo;
using Korvan.CAD.FileFormats.Cad.Dwg.Bits;
using Korvan.CAD.FileFormats.Cad.Dwg.Container;
using Korvan.CAD.FileFormats.Cad.Dwg.Header;
using Korvan.CAD.FileFormats.Cad.Dwg.Objects;
using Korvan.CAD.FileFormats.Cad.Dwg.Sections;
using Korvan.CAD.FileFormats.Cad.Dwg.SummaryInfo;
using Korvan.CAD.FileFormats.Cad.Model;

namespace Korvan.CAD.FileFormats.Cad.Dwg;

/// <summary>Makes the sections of a drawing database out of a drawing and the records of its objects.</summary>
internal static class DwgContentBuilder
{
    /// <summary>Returns the sections.</summary>
    /// <param name="drawing">The drawing, whose objects have handles.</param>
    /// <param name="version">The release: 2000, 2004, 2010, 2013 or 2018.</param>
    /// <param name="objects">The records of the objects.</param>
    /// <param name="classes">The classes of the objects.</param>
    /// <exception cref="ImageSaveException">A value does not fit its field.</exception>
    internal static DwgContent Build(
        CadDrawing drawing, CadAcadVersion version, ObjectStore objects, IReadOnlyList<CadClassEntity> classes)
    {
        int release = DrawingRelease.Year(version);
        int codePage = CodePageIndex.IndexOf(drawing.Header.CodePage);
        Encoding encoding = DwgCodePage.Get(CodePageIndex.NameOf(codePage));
        HeaderValues values = ValuesOf(drawing);
        HeaderWriter header = new(release, encoding);
        HeaderWriter classSection = new(release, encoding);
        try
        {
            values.Exchange(header);
            ClassSection.Write(classSection, classes);
        }
        catch (DwgFault fault)
        {
            throw new ImageSaveException($"The header of the drawing cannot be written: {fault.Message}.");
        }

        return Build(drawing, version, objects, values, new SectionText(release, encoding)) with
        {
            CodePage = codePage,
            Header = header.ToArray(),
            Classes = classSection.ToArray(),
        };
    }

    /// <summary>Returns the values of the header section of a drawing.</summary>
    internal static HeaderValues ValuesOf(CadDrawing drawing)
    {
        HeaderValues values = HeaderVariableCodec.FromHeader(
            drawing.Header, (field, name) => HeaderReferences.HandleOf(drawing, field, name));
        HeaderReferences.Fill(values, drawing);
        CompleteTime(values, drawing.Header, "$TDUCREATE", "$TDCREATE");
        CompleteTime(values, drawing.Header, "$TDUUPDATE", "$TDUPDATE");
        return values;
    }

    // Drawings of release 14 and before state the local time only.
    private static void CompleteTime(HeaderValues values, CadHeader header, string universal, string local)
    {
        if (!values.Contains(universal) && header.Unreadable(local).Length == 0)
        {
            values[universal] = HeaderVariableCodec.TimeOf(header.GetDouble(local));
        }
    }

    private static DwgContent Build(CadDrawing drawing, CadAcadVersion version, ObjectStore objects,
        HeaderValues values, SectionText text)
    {
        int release = DrawingRelease.Year(version);
        DrawingProperties properties = drawing.Properties;
        SummaryInfoData summary = properties.ToSummary(drawing.Header);
        bool hasProperties = release > 2000;
        return new DwgContent
        {
            Version = version,
            Header = default,
            Classes = default,
            Objects = objects,
            SecondHeaderHandles = HeaderReferences.ForSecondHeader(values),
            PreviewImage = release >= ModelerSection.Since
                ? PreviewBitmap.ToPng(drawing.ThumbnailImage) : drawing.ThumbnailImage,
            SummaryInfo = hasProperties ? SummaryInfoSection.Write(summary, text) : [],
            AppInfo = hasProperties ? WriteProgram() : [],
            RevHistory = hasProperties ? MinorSections.WriteRevHistory(properties.RevHistory, release) : [],
            VbaProject = hasProperties && properties.VbaProject is { } project
                ? MinorSections.WriteVbaProject(project) : [],
            FileDepList = hasProperties ? FileDependencySection.Write(properties.FileDependencies, text) : [],
            Template = MinorSections.WriteTemplate(drawing.Header.Measurement),
            ObjFreeSpace = hasProperties
                ? MinorSections.WriteFreeSpace(release, objects.Count, summary.UpdateTime) : [],
            AuxHeader = MinorSections.WriteAuxHeader(
                release, values.HandleOf("$HANDSEED"), summary.CreateTime, summary.UpdateTime),
            AcdsPrototype = release >= ModelerSection.Since
                ? DataStoreWriter.Write(ModelerSection.DataOf(drawing)) : [],
        };
    }

    private static byte[] WriteProgram() => AppInfoSection.Write(new AppInfoData21
    {
        Version = BuildVersionInfo.AssemblyVersion,
        Comment = "This file was written by korvan.cad.",
        Product = $"<ProductInformation name =\"korvan.cad\" build_version=\"{BuildVersionInfo.AssemblyVersion}\" "
            + "registry_version=\"1.0\" install_id_string=\"korvan.cad\" registry_localeID=\"1033\"/>",
    });
}
