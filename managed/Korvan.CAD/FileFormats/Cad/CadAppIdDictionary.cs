using System.Collections.Generic;
using Korvan.CAD.CadExceptions.ImageFormats;
using Korvan.CAD.FileFormats.Cad.CadTables;
using Korvan.CAD.FileFormats.Cad.Dxf;
using Korvan.CAD.FileFormats.Cad.Model;

namespace Korvan.CAD.FileFormats.Cad;

/// <summary>The programs that attached data to a drawing.</summary>
public class CadAppIdDictionary : NonGenericDictionary
{
    private readonly NamedObjects<CadAppIdTableObject> _items;

    internal CadAppIdDictionary()
        : this(new NamedObjects<CadAppIdTableObject>("application"))
    {
    }

    private CadAppIdDictionary(NamedObjects<CadAppIdTableObject> items)
        : base(new NamedEntries<CadAppIdTableObject>(items))
    {
        _items = items;
    }

    /// <summary>Gets the names, in order.</summary>
    public string[] Names => [.. _items.Items.ConvertAll(static item => item.Key)];

    internal List<CadAppIdTableObject> Items => _items.Items;

    /// <summary>Gets an application by its place, from 0.</summary>
    /// <param name="index">The place.</param>
    public CadAppIdTableObject this[int index] => _items.Items[index];

    /// <summary>Gets an application by its name; upper and lower case are the same.</summary>
    /// <param name="name">The name.</param>
    /// <exception cref="CadException">There is none of this name.</exception>
    public CadAppIdTableObject this[string name] => Get(name);

    /// <summary>Gives an application by its name; upper and lower case are the same.</summary>
    /// <param name="name">The name.</param>
    /// <returns>What has this name. <see cref="Find"/> gives nothing where there is none.</returns>
    /// <exception cref="CadException">There is none of this name.</exception>
    public CadAppIdTableObject Get(string name) => Find(name)
        ?? throw new CadException($"The drawing has no application called '{name}'.");

    /// <summary>Finds an application; upper and lower case are the same.</summary>
    /// <param name="name">The name.</param>
    /// <returns>What was found, or nothing.</returns>
    public CadAppIdTableObject? Find(string name) => _items.Find(name);

    /// <summary>Tells whether there is an application of a name; upper and lower case are the same.</summary>
    /// <param name="name">The name.</param>
    /// <returns>Whether there is an application of a name.</returns>
    public bool Contains(string name) => _items.Find(name) is not null;

    /// <summary>Adds an application.</summary>
    /// <param name="item">What is added.</param>
    public void Add(CadAppIdTableObject item) => _items.Add(item);

    /// <summary>Removes an application.</summary>
    /// <param name="item">What is removed.</param>
    /// <returns>Whether it was there.</returns>
    public bool Remove(CadAppIdTableObject item) => _items.Remove(item);

    /// <summary>Gives all, in order.</summary>
    /// <returns>All, in order.</returns>
    public List<CadAppIdTableObject>.Enumerator GetEnumerator() => _items.Items.GetEnumerator();
}
