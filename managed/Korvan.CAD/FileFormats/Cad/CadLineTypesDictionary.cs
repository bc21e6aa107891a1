using System.Collections.Generic;
using Korvan.CAD.CadExceptions.ImageFormats;
using Korvan.CAD.FileFormats.Cad.CadTables;
using Korvan.CAD.FileFormats.Cad.Dxf;
using Korvan.CAD.FileFormats.Cad.Model;

namespace Korvan.CAD.FileFormats.Cad;

/// <summary>The line types of a drawing.</summary>
public class CadLineTypesDictionary : NonGenericDictionary
{
    private readonly NamedObjects<CadLineTypeTableObject> _items;

    internal CadLineTypesDictionary()
        : this(new NamedObjects<CadLineTypeTableObject>("line type"))
    {
    }

    private CadLineTypesDictionary(NamedObjects<CadLineTypeTableObject> items)
        : base(new NamedEntries<CadLineTypeTableObject>(items))
    {
        _items = items;
    }

    /// <summary>Gets the names, in order.</summary>
    public string[] Names => [.. _items.Items.ConvertAll(static item => item.Key)];

    internal List<CadLineTypeTableObject> Items => _items.Items;

    /// <summary>Gets a line type by its place, from 0.</summary>
    /// <param name="index">The place.</param>
    public CadLineTypeTableObject this[int index] => _items.Items[index];

    /// <summary>Gets a line type by its name; upper and lower case are the same.</summary>
    /// <param name="name">The name.</param>
    /// <exception cref="CadException">There is none of this name.</exception>
    public CadLineTypeTableObject this[string name] => Get(name);

    /// <summary>Gives a line type by its name; upper and lower case are the same.</summary>
    /// <param name="name">The name.</param>
    /// <returns>What has this name. <see cref="Find"/> gives nothing where there is none.</returns>
    /// <exception cref="CadException">There is none of this name.</exception>
    public CadLineTypeTableObject Get(string name) => Find(name)
        ?? throw new CadException($"The drawing has no line type called '{name}'.");

    /// <summary>Finds a line type; upper and lower case are the same.</summary>
    /// <param name="name">The name.</param>
    /// <returns>What was found, or nothing.</returns>
    public CadLineTypeTableObject? Find(string name) => _items.Find(name);

    /// <summary>Tells whether there is a line type of a name; upper and lower case are the same.</summary>
    /// <param name="name">The name.</param>
    /// <returns>Whether there is a line type of a name.</returns>
    public bool Contains(string name) => _items.Find(name) is not null;

    /// <summary>Adds a line type.</summary>
    /// <param name="item">What is added.</param>
    public void Add(CadLineTypeTableObject item) => _items.Add(item);

    /// <summary>Removes a line type.</summary>
    /// <param name="item">What is removed.</param>
    /// <returns>Whether it was there.</returns>
    public bool Remove(CadLineTypeTableObject item) => _items.Remove(item);

    /// <summary>Gives all, in order.</summary>
    /// <returns>All, in order.</returns>
    public List<CadLineTypeTableObject>.Enumerator GetEnumerator() => _items.Items.GetEnumerator();
}
