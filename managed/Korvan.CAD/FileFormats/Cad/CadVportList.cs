using System.Collections.Generic;
using Korvan.CAD.CadExceptions.ImageFormats;
using Korvan.CAD.FileFormats.Cad.CadTables;
using Korvan.CAD.FileFormats.Cad.Dxf;
using Korvan.CAD.FileFormats.Cad.Model;

namespace Korvan.CAD.FileFormats.Cad;

/// <summary>The screen parts of a drawing; several may have one name.</summary>
public class CadVportList : NonGenericList
{
    private readonly NamedObjects<CadVportTableObject> _items;

    internal CadVportList()
        : this(new NamedObjects<CadVportTableObject>("screen part"))
    {
    }

    private CadVportList(NamedObjects<CadVportTableObject> items)
        : base(items)
    {
        _items = items;
    }

    /// <summary>Gets the names, in order.</summary>
    public string[] Names => [.. _items.Items.ConvertAll(static item => item.Key)];

    internal List<CadVportTableObject> Items => _items.Items;

    /// <summary>Gets a screen part by its place, from 0.</summary>
    /// <param name="index">The place.</param>
    public CadVportTableObject this[int index] => _items.Items[index];

    /// <summary>Gets a screen part by its name; upper and lower case are the same.</summary>
    /// <param name="name">The name.</param>
    /// <exception cref="CadException">There is none of this name.</exception>
    public CadVportTableObject this[string name] => Get(name);

    /// <summary>Gives a screen part by its name; upper and lower case are the same.</summary>
    /// <param name="name">The name.</param>
    /// <returns>What has this name. <see cref="Find"/> gives nothing where there is none.</returns>
    /// <exception cref="CadException">There is none of this name.</exception>
    public CadVportTableObject Get(string name) => Find(name)
        ?? throw new CadException($"The drawing has no screen part called '{name}'.");

    /// <summary>Finds a screen part; upper and lower case are the same.</summary>
    /// <param name="name">The name.</param>
    /// <returns>What was found, or nothing.</returns>
    public CadVportTableObject? Find(string name) => _items.Find(name);

    /// <summary>Tells whether there is a screen part of a name; upper and lower case are the same.</summary>
    /// <param name="name">The name.</param>
    /// <returns>Whether there is a screen part of a name.</returns>
    public bool Contains(string name) => _items.Find(name) is not null;

    /// <summary>Adds a screen part.</summary>
    /// <param name="item">What is added.</param>
    public void Add(CadVportTableObject item) => _items.Add(item);

    /// <summary>Removes a screen part.</summary>
    /// <param name="item">What is removed.</param>
    /// <returns>Whether it was there.</returns>
    public bool Remove(CadVportTableObject item) => _items.Remove(item);

    /// <summary>Gives all, in order.</summary>
    /// <returns>All, in order.</returns>
    public List<CadVportTableObject>.Enumerator GetEnumerator() => _items.Items.GetEnumerator();
}
