using System.Collections.Generic;
using Korvan.CAD.CadExceptions.ImageFormats;
using Korvan.CAD.FileFormats.Cad.CadTables;
using Korvan.CAD.FileFormats.Cad.Dxf;
using Korvan.CAD.FileFormats.Cad.Model;

namespace Korvan.CAD.FileFormats.Cad;

/// <summary>The named coordinate systems of a drawing.</summary>
public class CadUcsList : NonGenericList
{
    private readonly NamedObjects<CadUcsTableObject> _items;

    internal CadUcsList()
        : this(new NamedObjects<CadUcsTableObject>("coordinate system"))
    {
    }

    private CadUcsList(NamedObjects<CadUcsTableObject> items)
        : base(items)
    {
        _items = items;
    }

    /// <summary>Gets the names, in order.</summary>
    public string[] Names => [.. _items.Items.ConvertAll(static item => item.Key)];

    internal List<CadUcsTableObject> Items => _items.Items;

    /// <summary>Gets a coordinate system by its place, from 0.</summary>
    /// <param name="index">The place.</param>
    public CadUcsTableObject this[int index] => _items.Items[index];

    /// <summary>Gets a coordinate system by its name; upper and lower case are the same.</summary>
    /// <param name="name">The name.</param>
    /// <exception cref="CadException">There is none of this name.</exception>
    public CadUcsTableObject this[string name] => Get(name);

    /// <summary>Gives a coordinate system by its name; upper and lower case are the same.</summary>
    /// <param name="name">The name.</param>
    /// <returns>What has this name. <see cref="Find"/> gives nothing where there is none.</returns>
    /// <exception cref="CadException">There is none of this name.</exception>
    public CadUcsTableObject Get(string name) => Find(name)
        ?? throw new CadException($"The drawing has no coordinate system called '{name}'.");

    /// <summary>Finds a coordinate system; upper and lower case are the same.</summary>
    /// <param name="name">The name.</param>
    /// <returns>What was found, or nothing.</returns>
    public CadUcsTableObject? Find(string name) => _items.Find(name);

    /// <summary>Tells whether there is a coordinate system of a name; upper and lower case are the same.</summary>
    /// <param name="name">The name.</param>
    /// <returns>Whether there is a coordinate system of a name.</returns>
    public bool Contains(string name) => _items.Find(name) is not null;

    /// <summary>Adds a coordinate system.</summary>
    /// <param name="item">What is added.</param>
    public void Add(CadUcsTableObject item) => _items.Add(item);

    /// <summary>Removes a coordinate system.</summary>
    /// <param name="item">What is removed.</param>
    /// <returns>Whether it was there.</returns>
    public bool Remove(CadUcsTableObject item) => _items.Remove(item);

    /// <summary>Gives all, in order.</summary>
    /// <returns>All, in order.</returns>
    public List<CadUcsTableObject>.Enumerator GetEnumerator() => _items.Items.GetEnumerator();
}
