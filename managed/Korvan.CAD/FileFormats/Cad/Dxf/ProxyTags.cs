using System.Collections.Generic;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.Model;

namespace Korvan.CAD.FileFormats.Cad.Dxf;

/// <summary>Writes what a drawing database has of objects that no class interprets as proxies: the number of the class,
/// the stored graphics, the bits of the object and its references.</summary>
/// <param name="writer">The file.</param>
/// <param name="classes">The classes of the drawing.</param>
internal sealed class ProxyTags(DxfTagWriter writer, IReadOnlyList<CadClassEntity> classes)
{
    private const int Since = 1997;
    private const int WithFormat = 2000;
    private const int WithLongSizes = 2010;
    private const int FirstClass = 500;

    private readonly Dictionary<string, int> _numbers = [];

    /// <summary>Determines whether an object can be written as a proxy: its class has to be stated, and its record or
    /// its graphics have to be whole.</summary>
    internal bool Covers(CadBaseObject item) => item is RawEntity or RawObject && writer.Release >= Since
        && item.Kept is KeptBits kept && (kept.Proxy is not null || (item is RawEntity && kept.Graphics.Length > 0))
        && NumberOf(item.DxfName) >= FirstClass;

    /// <summary>Returns the name of a proxy in files.</summary>
    internal static string NameOf(CadBaseObject item) =>
        item is RawEntity ? "ACAD_PROXY_ENTITY" : "ACAD_PROXY_OBJECT";

    /// <summary>Writes the fields of a proxy.</summary>
    /// <param name="item">An object that is covered.</param>
    internal void Write(CadBaseObject item)
    {
        const int entityClass = 498;
        const int objectClass = 499;
        KeptBits kept = (KeptBits)item.Kept!;
        writer.WriteSubclass(item is RawEntity ? "AcDbProxyEntity" : "AcDbProxyObject");
        writer.Write(90, item is RawEntity ? entityClass : objectClass);
        writer.Write(91, NumberOf(item.DxfName));
        ProxyContent? content = kept.Proxy?.Create();
        if (content is not null && writer.Release >= WithFormat)
        {
            writer.Write(95, content.Format);
            writer.Write(70, 0);
        }

        bool isLong = writer.Release >= WithLongSizes;
        if (kept.Graphics.Length > 0)
        {
            writer.Write(isLong ? 160 : 92, kept.Graphics.Length);
            writer.Write(310, kept.Graphics);
        }

        if (content is not null)
        {
            writer.Write(isLong ? 161 : 93, content.Bits);
            writer.Write(310, content.Data);
            content.References.ForEach(writer.Write);
        }

        writer.Write(94, 0);
    }

    private int NumberOf(string name)
    {
        if (!_numbers.TryGetValue(name, out int number))
        {
            number = -1;
            for (int i = 0; i < classes.Count && number < 0; i++)
            {
                number = classes[i].DxfRecordName == name ? FirstClass + i : -1;
            }

            _numbers[name] = number;
        }

        return number;
    }
}
