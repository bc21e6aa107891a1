using System;
using System.Collections.Generic;
using Korvan.CAD.FileFormats.Cad.CadObjects;

namespace Korvan.CAD.FileFormats.Cad.Exchange;

/// <content>Lists, whose number of items has been carried before.</content>
internal abstract partial class ObjectExchange
{
    /// <summary>Carries the extents of something along X and Y.</summary>
    internal void Size(int widthCode, int heightCode, CadSize size)
    {
        size.Width = Double(widthCode, size.Width);
        size.Height = Double(heightCode, size.Height);
    }

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
            values[i] = Text(code, values[i] ?? "");
        }
    }

    internal void Handles(int code, HandleRole role, List<string> values, int count)
    {
        Resize(values, count);
        for (int i = 0; i < count; i++)
        {
            values[i] = Handle(code, role, values[i] ?? "0");
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

    /// <summary>Carries a list whose length is not stated: it ends before another group code.</summary>
    internal void Run(int code, List<double> values, int max) =>
        Run(code, values, max, i => values[i] = Double(code, values[i]), static () => 0);

    internal void Run(int code, List<int> values, int max) =>
        Run(code, values, max, i => values[i] = Int32(code, values[i]), static () => 0);

    internal void Run(int code, List<string> values, int max) =>
        Run(code, values, max, i => values[i] = Text(code, values[i]), static () => "");

    internal void RunOfHandles(int code, List<string> values, HandleRole role, int max) =>
        Run(code, values, max, i => values[i] = Handle(code, role, values[i]), static () => "0");

    internal void Run(int code, IList<Cad3DPoint> points, int max) =>
        Run(code, points, max, i => Point(code, points[i]), static () => new Cad3DPoint());

    internal void Run(int code, IList<Cad2DPoint> points, int max) =>
        Run(code, points, max, i => Point(code, points[i]), static () => new Cad2DPoint());

    internal void Run<T>(int code, IList<T> parts, Action<T, ObjectExchange> exchange, int max)
        where T : class, new() => Run(code, parts, max, i => exchange(parts[i], this), static () => new T());

    /// <summary>Carries one item of a list that may be shorter than the list it belongs to.</summary>
    internal void ItemAt(int code, List<double> values, int index, double missing)
    {
        double value = Double(code, index < values.Count ? values[index] : missing);
        if (IsReading)
        {
            values.Add(value);
        }
    }

    /// <summary>Carries one item of a list of integers.</summary>
    internal void ItemAt(int code, List<int> values, int index)
    {
        int value = Int32(code, index < values.Count ? values[index] : 0);
        if (IsReading)
        {
            values.Add(value);
        }
    }

    /// <summary>Returns the item of a list whose fields follow; an object that takes values over gets a new
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

    private void Run<T>(int code, IList<T> items, int max, Action<int> carry, Func<T> create)
    {
        int present = items.Count;
        for (int i = 0; i < max && HasItem(code, i < present); i++)
        {
            if (IsReading)
            {
                if (i == 0)
                {
                    items.Clear();
                }

                items.Add(create());
            }

            carry(i);
        }
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
