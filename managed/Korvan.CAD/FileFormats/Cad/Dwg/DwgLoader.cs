using System.Collections.Generic;
using System.Globalization;
using Korvan.CAD.CadExceptions;
using Korvan.CAD.FileFormats.Cad.CadConsts;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.CadObjects.MLineStyleObject;
using Korvan.CAD.FileFormats.Cad.CadTables;
using Korvan.CAD.FileFormats.Cad.Dwg.Bits;
using Korvan.CAD.FileFormats.Cad.Dwg.Container;
using Korvan.CAD.FileFormats.Cad.Dwg.Header;
using Korvan.CAD.FileFormats.Cad.Dwg.Objects;
using Korvan.CAD.FileFormats.Cad.Dwg.Sections;
using Korvan.CAD.FileFormats.Cad.Model;
using Korvan.CAD.Input;

namespace Korvan.CAD.FileFormats.Cad.Dwg;

/// <summary>Reads drawing databases from release 13 on: sections, variables, classes and objects.</summary>
internal static class DwgLoader
{
    private const string HeaderSection = "AcDb:Header";
    private const string ClassesSection = "AcDb:Classes";

    /// <summary>Reads a drawing.</summary>
    /// <param name="data">The whole file.</param>
    /// <param name="name">Its name in messages.</param>
    /// <param name="version">The release that its first bytes state.</param>
    /// <param name="options">The load options.</param>
    /// <exception cref="ImageLoadException">The file is damaged, and defects end the load, or it is
    /// encrypted.</exception>
    internal static CadDrawing Load(byte[] data, string name, CadAcadVersion version, LoadOptions options)
    {
        DwgFile file = DwgContainer.Read(data, name, version, options);
        CadDrawing drawing = new(DrawingSeed.Blank);
        drawing.Header.AcadVersion = version;
        int code = version >= CadAcadVersion.AC1032 ? 90 : 70;
        drawing.Header.Set("$ACADMAINTVER", code, file.MaintenanceVersion.ToString(CultureInfo.InvariantCulture));
        drawing.Header.CodePage = CodePageIndex.NameOf(file.CodePage);
        HeaderValues header = ReadHeader(file);
        List<CadClassEntity> classes = ReadClasses(file);
        if (classes.Count == 0 && file.Source.IsTolerant)
        {
            classes = ClassGuess.Find(file);
        }

        classes.ForEach(drawing.ClassEntities.Add);
        new DwgReader(file, drawing).Read();
        foreach (CadEntityBase entity in DrawingWalk.Entities(drawing))
        {
            if (entity is RawEntity { Kept: KeptBits kept })
            {
                kept.Fields = EntityDigests.OfFields(entity);
            }
        }

        Dictionary<ulong, string> names = NamesOf(drawing);
        HeaderVariableCodec.ToHeader(header, file.Release, drawing.Header, handle => names.GetValueOrDefault(handle));
        CompleteTimes(drawing.Header);
        MoveRootToFront(drawing, header.HandleOf("namedObjects"));
        PropertySections.Read(file, drawing);
        return drawing;
    }

    // The first dictionary of a drawing is the one that leads to all others.
    private static void MoveRootToFront(CadDrawing drawing, ulong handle)
    {
        int index = drawing.Objects.Items.FindIndex(item => item.Handle == handle);
        if (index > 0)
        {
            CadObjectBase root = drawing.Objects[index];
            drawing.Objects.RemoveAt(index);
            drawing.Objects.Insert(0, root);
        }
    }

    // Files have the universal time only; programs expect the local one as well.
    private static void CompleteTimes(CadHeader header)
    {
        foreach ((string local, string universal) in new[] { ("$TDCREATE", "$TDUCREATE"), ("$TDUPDATE", "$TDUUPDATE") })
        {
            if (header.GetString(universal) is { Length: > 0 } time)
            {
                header.Set(local, 40, time);
            }
        }
    }

    private static HeaderValues ReadHeader(DwgFile file)
    {
        HeaderValues values = new();
        try
        {
            values.Exchange(new HeaderReader(file.Header, file.Release, file.Encoding));
        }
        catch (DwgFault fault)
        {
            Report(file, HeaderSection, fault);
        }

        return values;
    }

    private static List<CadClassEntity> ReadClasses(DwgFile file)
    {
        try
        {
            return file.Classes.IsEmpty ? []
                : ClassSection.Read(new HeaderReader(file.Classes, file.Release, file.Encoding));
        }
        catch (DwgFault fault)
        {
            Report(file, ClassesSection, fault);
            return [];
        }
    }

    private static void Report(DwgFile file, string section, DwgFault fault) =>
        file.Source.Report(LoadDefectCode.InvalidSection, section, -1, $"bit {fault.Position}: {fault.Message}");

    // What variables name: records of tables and multiline styles.
    private static Dictionary<ulong, string> NamesOf(CadDrawing drawing)
    {
        Dictionary<ulong, string> names = [];
        foreach (string table in TableRecords.Names)
        {
            foreach (CadSymbolTableGroupCodes record in TableRecords.Of(drawing, table))
            {
                names[record.Handle] = record.Name;
            }
        }

        foreach (CadObjectBase item in drawing.Objects)
        {
            if (item is CadMLineStyleObject style)
            {
                names[style.Handle] = style.StyleName;
            }
        }

        return names;
    }
}
