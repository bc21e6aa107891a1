using System;
using System.Collections.Generic;
using Korvan.CAD.FileFormats.Cad.CadObjects;

namespace Korvan.CAD.FileFormats.Cad.Exchange;

/// <content>Lists, whose number of items has been carried before.</content>
internal abstract partial class ObjectExchange
{
    internal void Items(int code, List<double> values, int count)
    {
        Resize(values, count);
        for (int i = 0; i < count; i++)
        {
            values[i] = Double(code, values[i]);
        }
    }

    internal void Items(int code, List<int> values, int count)
    {
        Resize(values, count);
        for (int i = 0; i < count; i++)
        {
            values[i] = Int32(code, values[i]);
        }
    }

    internal void Items(int code, List<string> values, int count)
    {
        Resize(values, count);
        for (int i = 0; i < count; i++)
        {
            values[i] = Text(code, values[i]);
        }
    }

    internal void Handles(int code, HandleRole role, List<string> values, int count)
    {
        Resize(values, count);
        for (int i = 0; i < count; i++)
        {
            values[i] = Handle(code, role, values[i]);
        }
    }

    internal void Points(int code, IList<Cad2DPoint> points, int count)
    {
        for (int i = 0; i < count; i++)
        {
            Point(code, Item(points, i));
        }
    }

    internal void Points(int code, IList<Cad3DPoint> points, int count)
    {
        for (int i = 0; i < count; i++)
        {
            Point(code, Item(points, i));
        }
    }

    internal void Parts<T>(IList<T> parts, int count, Action<T, ObjectExchange> exchange)
        where T : class, new()
    {
        for (int i = 0; i < count; i++)
        {
            exchange(Item(parts, i), this);
        }
    }

    /// <summary>Carries one item of a list that may be shorter than the list it belongs to.</summary>
    internal void ItemAt(int code, List<double> values, int index, double missing)
    {
        double value = Double(code, index < values.Count ? values[index] : missing);
        if (IsReading)
        {
            values.Add(value);
        }
    }

    /// <summary>Gives the item of a list whose fields follow; an object that takes values over gets a new
    /// one.</summary>
    internal T Item<T>(IList<T> items, int index)
        where T : class, new()
    {
        if (IsReading)
        {
            items.Add(new T());
        }

        return items[index];
    }

    private void Resize<T>(List<T> values, int count)
    {
        if (IsReading)
        {
            values.Clear();
            System.Runtime.InteropServices.CollectionsMarshal.SetCount(values, count);
        }
    }
}
