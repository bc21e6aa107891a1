using System.Collections.Generic;
using Korvan.CAD.CadExceptions.ImageFormats;
using Korvan.CAD.FileFormats.Cad.CadTables;
using Korvan.CAD.FileFormats.Cad.Dxf;
using Korvan.CAD.FileFormats.Cad.Model;

namespace Korvan.CAD.FileFormats.Cad;

/// <summary>The text styles of a drawing.</summary>
public class CadStylesList : NonGenericList
{
    private readonly NamedObjects<CadStyleTableObject> _items;

    internal CadStylesList()
        : this(new NamedObjects<CadStyleTableObject>("text style"))
    {
    }

    private CadStylesList(NamedObjects<CadStyleTableObject> items)
        : base(items)
    {
        _items = items;
    }

    /// <summary>Gets the names, in order.</summary>
    public string[] Names => [.. _items.Items.ConvertAll(static item => item.Key)];

    internal List<CadStyleTableObject> Items => _items.Items;

    /// <summary>Gets a text style by its place, from 0.</summary>
    /// <param name="index">The place.</param>
    public CadStyleTableObject this[int index] => _items.Items[index];

    /// <summary>Gets a text style by its name; upper and lower case are the same.</summary>
    /// <param name="name">The name.</param>
    /// <exception cref="CadException">There is none of this name.</exception>
    public CadStyleTableObject this[string name] => Get(name);

    /// <summary>Gives a text style by its name; upper and lower case are the same.</summary>
    /// <param name="name">The name.</param>
    /// <returns>What has this name. <see cref="Find"/> gives nothing where there is none.</returns>
    /// <exception cref="CadException">There is none of this name.</exception>
    public CadStyleTableObject Get(string name) => Find(name)
        ?? throw new CadException($"The drawing has no text style called '{name}'.");

    /// <summary>Finds a text style; upper and lower case are the same.</summary>
    /// <param name="name">The name.</param>
    /// <returns>What was found, or nothing.</returns>
    public CadStyleTableObject? Find(string name) => _items.Find(name);

    /// <summary>Tells whether there is a text style of a name; upper and lower case are the same.</summary>
    /// <param name="name">The name.</param>
    /// <returns>Whether there is a text style of a name.</returns>
    public bool Contains(string name) => _items.Find(name) is not null;

    /// <summary>Adds a text style.</summary>
    /// <param name="item">What is added.</param>
    public void Add(CadStyleTableObject item) => _items.Add(item);

    /// <summary>Removes a text style.</summary>
    /// <param name="item">What is removed.</param>
    /// <returns>Whether it was there.</returns>
    public bool Remove(CadStyleTableObject item) => _items.Remove(item);

    /// <summary>Gives all, in order.</summary>
    /// <returns>All, in order.</returns>
    public List<CadStyleTableObject>.Enumerator GetEnumerator() => _items.Items.GetEnumerator();
}
