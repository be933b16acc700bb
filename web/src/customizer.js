// The customizer: an input for every field of a DEF-named PARAMETERS node,
// from the engine's --parameters listing.  Each change gives the field a
// value text as -D NAME:FIELD=VALUE would.
function hexOf(rgb) {
  return '#' + rgb.map((c) => Math.round(Math.min(1, Math.max(0, c)) * 255).toString(16).padStart(2, '0')).join('');
}

function rgbOf(hex) {
  return [1, 3, 5].map((i) => +(parseInt(hex.slice(i, i + 2), 16) / 255).toFixed(4));
}

function quoted(text) {
  return '"' + text.replace(/\\/g, '\\\\').replace(/"/g, '\\"') + '"';
}

// The value text the field reads, from a JSON value of the parameter's type.
export function valueText(parameter, value) {
  switch (parameter.type) {
    case 'boolean': return value ? 'TRUE' : 'FALSE';
    case 'color':
    case 'vector': return value.join(' ');
    case 'string': return quoted(String(value));
    case 'integer': return String(Math.round(Number(value)));
    default: return String(value);
  }
}

export class Customizer {
  constructor(form, onChange) {
    this.form = form;
    this.onChange = onChange;
    this.signature = '';
    this.values = {};  // name -> JSON value chosen by the author
  }

  // Rebuilds the inputs when the list of parameters changed.
  show(parameters) {
    const signature = JSON.stringify(parameters);
    if (signature === this.signature) return;
    this.signature = signature;
    this.parameters = parameters;
    const names = new Set(parameters.map((p) => p.name));
    for (const name of Object.keys(this.values)) if (!names.has(name)) delete this.values[name];
    this.form.textContent = '';
    const groups = new Map();
    for (const p of parameters) {
      if (!groups.has(p.group)) {
        const fieldset = document.createElement('fieldset');
        const legend = document.createElement('legend');
        legend.textContent = p.group;
        fieldset.append(legend);
        this.form.append(fieldset);
        groups.set(p.group, fieldset);
      }
      groups.get(p.group).append(this.row(p));
    }
  }

  row(p) {
    const row = document.createElement('div');
    row.className = 'parameter';
    row.dataset.name = p.name;
    const label = document.createElement('label');
    label.textContent = p.caption || p.name.split(':')[1];
    label.title = p.name;
    const shown = document.createElement('output');
    const value = p.name in this.values ? this.values[p.name] : p.initial;
    const set = (v) => {
      this.values[p.name] = v;
      shown.textContent = Array.isArray(v) ? '' : String(v);
      this.onChange();
    };
    let control;
    if (p.options) {
      control = document.createElement('select');
      p.options.forEach((option, i) => {
        const o = document.createElement('option');
        o.value = String(i);
        o.textContent = option.name;
        if (JSON.stringify(option.value) === JSON.stringify(value)) o.selected = true;
        control.append(o);
      });
      control.addEventListener('change', () => set(p.options[+control.value].value));
    } else if (p.type === 'boolean') {
      control = document.createElement('input');
      control.type = 'checkbox';
      control.checked = !!value;
      control.addEventListener('change', () => set(control.checked));
    } else if (p.type === 'color') {
      control = document.createElement('input');
      control.type = 'color';
      control.value = hexOf(value);
      control.addEventListener('input', () => set(rgbOf(control.value)));
    } else if (p.type === 'vector') {
      control = document.createElement('span');
      const parts = value.map((component, i) => {
        const input = document.createElement('input');
        input.type = 'number';
        input.step = 'any';
        input.value = component;
        input.addEventListener('change', () => set(parts.map((x) => Number(x.value))));
        control.append(input);
        return input;
      });
    } else if (p.type === 'string') {
      control = document.createElement('input');
      control.value = value;
      control.addEventListener('change', () => set(control.value));
    } else {
      control = document.createElement('input');
      const slider = p.min !== undefined && p.max !== undefined;
      control.type = slider ? 'range' : 'number';
      if (slider) {
        control.min = p.min;
        control.max = p.max;
      }
      control.step = p.step !== undefined ? p.step : p.type === 'integer' ? 1 : slider ? (p.max - p.min) / 100 : 'any';
      control.value = value;
      control.addEventListener(slider ? 'input' : 'change', () => set(Number(control.value)));
    }
    shown.textContent = Array.isArray(value) ? '' : String(value);
    row.append(label, control, shown);
    return row;
  }

  // The -D values of the fields the author changed.
  overrides() {
    const byName = new Map((this.parameters || []).map((p) => [p.name, p]));
    return Object.entries(this.values)
      .filter(([name]) => byName.has(name))
      .map(([name, value]) => {
        const [node, field] = name.split(':');
        return { node, field, value: valueText(byName.get(name), value) };
      });
  }
}
