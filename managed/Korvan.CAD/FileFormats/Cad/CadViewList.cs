using System.Collections.Generic;
using Korvan.CAD.CadExceptions.ImageFormats;
using Korvan.CAD.FileFormats.Cad.CadTables;
using Korvan.CAD.FileFormats.Cad.Dxf;
using Korvan.CAD.FileFormats.Cad.Model;

namespace Korvan.CAD.FileFormats.Cad;

/// <summary>The named views of a drawing.</summary>
public class CadViewList : NonGenericList
{
    private readonly NamedObjects<CadViewTableObject> _items;

    internal CadViewList()
        : this(new NamedObjects<CadViewTableObject>("view"))
    {
    }

    private CadViewList(NamedObjects<CadViewTableObject> items)
        : base(items)
    {
        _items = items;
    }

    /// <summary>Gets the names, in order.</summary>
    public string[] Names => [.. _items.Items.ConvertAll(static item => item.Key)];

    internal List<CadViewTableObject> Items => _items.Items;

    /// <summary>Gets a view by its place, from 0.</summary>
    /// <param name="index">The place.</param>
    public CadViewTableObject this[int index] => _items.Items[index];

    /// <summary>Gets a view by its name; upper and lower case are the same.</summary>
    /// <param name="name">The name.</param>
    /// <exception cref="CadException">There is none of this name.</exception>
    public CadViewTableObject this[string name] => Get(name);

    /// <summary>Gives a view by its name; upper and lower case are the same.</summary>
    /// <param name="name">The name.</param>
    /// <returns>What has this name. <see cref="Find"/> gives nothing where there is none.</returns>
    /// <exception cref="CadException">There is none of this name.</exception>
    public CadViewTableObject Get(string name) => Find(name)
        ?? throw new CadException($"The drawing has no view called '{name}'.");

    /// <summary>Finds a view; upper and lower case are the same.</summary>
    /// <param name="name">The name.</param>
    /// <returns>What was found, or nothing.</returns>
    public CadViewTableObject? Find(string name) => _items.Find(name);

    /// <summary>Tells whether there is a view of a name; upper and lower case are the same.</summary>
    /// <param name="name">The name.</param>
    /// <returns>Whether there is a view of a name.</returns>
    public bool Contains(string name) => _items.Find(name) is not null;

    /// <summary>Adds a view.</summary>
    /// <param name="item">What is added.</param>
    public void Add(CadViewTableObject item) => _items.Add(item);

    /// <summary>Removes a view.</summary>
    /// <param name="item">What is removed.</param>
    /// <returns>Whether it was there.</returns>
    public bool Remove(CadViewTableObject item) => _items.Remove(item);

    /// <summary>Gives all, in order.</summary>
    /// <returns>All, in order.</returns>
    public List<CadViewTableObject>.Enumerator GetEnumerator() => _items.Items.GetEnumerator();
}
