using System;
using System.Collections.Generic;
using System.IO;
using System.Linq;
using System.Text;
using System.Xml;
using System.Xml.Linq;
using Korvan.CAD.Binding;
using Korvan.CAD.CadExceptions;
using Korvan.CAD.Input;

namespace Korvan.CAD;

/// <summary>XMP metadata: properties with names and namespaces (ISO 16684-1), as stored in image files.</summary>
public class XmpPacketWrapper
{
    private const string PacketBegin = "<?xpacket begin=\"\uFEFF\" id=\"W5M0MpCehiHzreSzNTczkc9d\"?>";
    private const string PacketEnd = "<?xpacket end=\"w\"?>";
    private const long MaxPacketCharacters = 16 << 20;

    private static readonly XNamespace Rdf = "http://www.w3.org/1999/02/22-rdf-syntax-ns#";
    private static readonly XNamespace Meta = "adobe:ns:meta/";
    private static readonly XNamespace Xml = "http://www.w3.org/XML/1998/namespace";
    private static readonly Dictionary<string, string> Prefixes = new()
    {
        ["http://purl.org/dc/elements/1.1/"] = "dc",
        ["http://ns.adobe.com/xap/1.0/"] = "xmp",
        ["http://ns.adobe.com/xap/1.0/rights/"] = "xmpRights",
        ["http://ns.adobe.com/xap/1.0/mm/"] = "xmpMM",
        ["http://ns.adobe.com/tiff/1.0/"] = "tiff",
        ["http://ns.adobe.com/exif/1.0/"] = "exif",
    };

    private readonly XElement _root;

    /// <summary>Creates a packet without properties.</summary>
    public XmpPacketWrapper()
    {
        _root = new XElement(Rdf + "RDF", new XAttribute(XNamespace.Xmlns + "rdf", Rdf.NamespaceName));
    }

    /// <summary>Reads a packet.</summary>
    /// <param name="xml">The packet, with or without its processing instructions.</param>
    /// <exception cref="XmpException">The text is not well-formed XML, or contains no RDF.</exception>
    public XmpPacketWrapper(string xml)
    {
        Verify.NotNull(xml);
        XElement? root = Parse(xml).DescendantsAndSelf(Rdf + "RDF").FirstOrDefault();
        _root = root ?? throw new XmpException("The packet holds no element rdf:RDF.");
    }

    /// <summary>Gets the number of properties.</summary>
    public int Count => PropertyNames.Length;

    /// <summary>Gets the names of the properties, each as <c>{namespace}name</c>, in the order of the packet.</summary>
    public string[] PropertyNames =>
        [.. Descriptions.SelectMany(
            static d => Attributes(d).Select(static a => a.Name).Concat(d.Elements().Select(static e => e.Name)))
            .Select(static name => name.ToString()).Distinct()];

    private IEnumerable<XElement> Descriptions => _root.Elements(Rdf + "Description");

    /// <summary>Returns the value of a property, the first of several; <see langword="null"/> where the property is
    /// missing.</summary>
    /// <param name="namespaceUri">Its namespace, for example <c>http://purl.org/dc/elements/1.1/</c>.</param>
    /// <param name="name">Its name, for example <c>title</c>.</param>
    /// <returns>The value, or <see langword="null"/>.</returns>
    public string? GetValue(string namespaceUri, string name) => GetValues(namespaceUri, name).FirstOrDefault();

    /// <summary>Returns the values of a property; empty where it is missing.</summary>
    /// <param name="namespaceUri">Its namespace.</param>
    /// <param name="name">Its name.</param>
    /// <returns>The values.</returns>
    public string[] GetValues(string namespaceUri, string name)
    {
        XName full = Name(namespaceUri, name);
        foreach (XElement description in Descriptions)
        {
            if (description.Attribute(full) is XAttribute attribute)
            {
                return [attribute.Value];
            }

            if (description.Element(full) is XElement element)
            {
                XElement[] items = [.. element.Descendants(Rdf + "li")];
                return items.Length > 0 ? [.. items.Select(static item => item.Value)] : [element.Value];
            }
        }

        return [];
    }

    /// <summary>Sets a property to one value.</summary>
    /// <param name="namespaceUri">Its namespace.</param>
    /// <param name="name">Its name.</param>
    /// <param name="value">The value.</param>
    public void SetValue(string namespaceUri, string name, string value)
    {
        Verify.NotNull(value);
        Put(namespaceUri, name, Verified(value));
    }

    /// <summary>Sets a property to a list of values in order.</summary>
    /// <param name="namespaceUri">Its namespace.</param>
    /// <param name="name">Its name.</param>
    /// <param name="values">The values.</param>
    public void SetValues(string namespaceUri, string name, string[] values)
    {
        Verify.NotNull(values);
        Put(namespaceUri, name,
            new XElement(Rdf + "Seq", values.Select(static value => new XElement(Rdf + "li", Verified(value)))));
    }

    /// <summary>Sets a property to a text in the default language, as for titles and descriptions.</summary>
    /// <param name="namespaceUri">Its namespace.</param>
    /// <param name="name">Its name.</param>
    /// <param name="text">The text.</param>
    public void SetLocalizedText(string namespaceUri, string name, string text)
    {
        Verify.NotNull(text);
        var item = new XElement(Rdf + "li", new XAttribute(Xml + "lang", "x-default"), Verified(text));
        Put(namespaceUri, name, new XElement(Rdf + "Alt", item));
    }

    /// <summary>Removes a property.</summary>
    /// <param name="namespaceUri">Its namespace.</param>
    /// <param name="name">Its name.</param>
    /// <returns>Whether it was there.</returns>
    public bool Remove(string namespaceUri, string name)
    {
        XName full = Name(namespaceUri, name);
        XObject[] found =
            [.. Descriptions.SelectMany(d => d.Attributes(full).Cast<XObject>().Concat(d.Elements(full)))];
        foreach (XObject property in found)
        {
            (property as XAttribute)?.Remove();
            (property as XElement)?.Remove();
        }

        return found.Length > 0;
    }

    /// <summary>Returns the packet as XML, without its processing instructions.</summary>
    /// <returns>The XML.</returns>
    public string ToXml()
    {
        var meta = new XElement(Meta + "xmpmeta", new XAttribute(XNamespace.Xmlns + "x", Meta.NamespaceName), _root);
        return meta.ToString(SaveOptions.DisableFormatting);
    }

    /// <summary>Returns the packet as stored in files: UTF-8, between its processing instructions.</summary>
    /// <returns>The bytes of the packet.</returns>
    public byte[] ToBytes() => Encoding.UTF8.GetBytes($"{PacketBegin}\n{ToXml()}\n{PacketEnd}");

    /// <inheritdoc/>
    public override string ToString() => ToXml();

    /// <summary>Adds the properties of another packet.</summary>
    internal void Append(XmpPacketWrapper other) => _root.Add(other.Descriptions.Where(
        static description => description.HasElements || Attributes(description).Any()));

    /// <summary>Reads a packet of a file; returns null where it is damaged, since an image can be shown without
    /// it.</summary>
    internal static XmpPacketWrapper? TryRead(ReadOnlySpan<byte> data)
    {
        try
        {
            return data.IsEmpty ? null : new XmpPacketWrapper(Encoding.UTF8.GetString(data).Trim('\0', '\uFEFF'));
        }
        catch (XmpException)
        {
            return null;
        }
    }

    private static XElement Parse(string xml)
    {
        try
        {
            using var reader = SafeXml.Open(new StringReader(xml), MaxPacketCharacters, keepsNotes: true);
            return XDocument.Load(reader).Root!;
        }
        catch (XmlException e)
        {
            throw new XmpException($"The packet is not well formed: {SafeXml.Reason(e)}.");
        }
    }

    private static IEnumerable<XAttribute> Attributes(XElement description) =>
        description.Attributes()
            .Where(static a => !a.IsNamespaceDeclaration && a.Name.Namespace != Rdf && a.Name.Namespace != Xml);

    private void Put(string namespaceUri, string name, object content)
    {
        XName full = Name(namespaceUri, name);
        Remove(namespaceUri, name);
        XElement? description = Descriptions.FirstOrDefault(d => d.GetPrefixOfNamespace(full.Namespace) != null);
        if (description == null)
        {
            string prefix = Prefixes.GetValueOrDefault(namespaceUri) ?? $"ns{Descriptions.Count() + 1}";
            description = new XElement(
                Rdf + "Description", new XAttribute(Rdf + "about", ""),
                    new XAttribute(XNamespace.Xmlns + prefix, namespaceUri));
            _root.Add(description);
        }

        description.Add(new XElement(full, content));
    }

    private static XName Name(string namespaceUri, string name)
    {
        Verify.NotEmpty(namespaceUri);
        Verify.NotEmpty(name);
        try
        {
            return XName.Get(XmlConvert.VerifyNCName(name), namespaceUri);
        }
        catch (XmlException e)
        {
            throw new XmpException($"'{name}' cannot name a property: {e.Message}");
        }
    }

    private static string Verified(string value)
    {
        try
        {
            return XmlConvert.VerifyXmlChars(value);
        }
        catch (XmlException e)
        {
            throw new XmpException($"A value holds a character that XML cannot hold: {e.Message}");
        }
    }
}
