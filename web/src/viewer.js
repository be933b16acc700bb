// The picture: three.js shows the .glb export.  The camera stays where the
// author left it from one translation to the next; the scene's own camera
// and lights are used when it has them, a default light otherwise.
import * as THREE from 'three';
import { OrbitControls } from 'three/examples/jsm/controls/OrbitControls.js';
import { GLTFLoader } from 'three/examples/jsm/loaders/GLTFLoader.js';

export class Viewer {
  constructor(canvas) {
    this.renderer = new THREE.WebGLRenderer({ canvas, antialias: true, preserveDrawingBuffer: true });
    this.renderer.setPixelRatio(window.devicePixelRatio);
    this.scene = new THREE.Scene();
    this.scene.background = new THREE.Color(0xf4f5f7);
    this.camera = new THREE.PerspectiveCamera(45, 1, 0.01, 1000);
    this.camera.position.set(4, 3, 6);
    this.controls = new OrbitControls(this.camera, canvas);
    this.controls.addEventListener('change', () => this.render());
    this.grid = new THREE.GridHelper(10, 10, 0x999999, 0xcccccc);
    this.axes = new THREE.AxesHelper(2);
    this.scene.add(this.grid, this.axes);
    this.defaultLights = new THREE.Group();
    this.defaultLights.add(new THREE.HemisphereLight(0xffffff, 0x666666, 1.2));
    const sun = new THREE.DirectionalLight(0xffffff, 1.5);
    sun.position.set(0.5, 1, 0.8);
    this.camera.add(sun);
    this.scene.add(this.camera);
    this.sun = sun;
    this.scene.add(this.defaultLights);
    this.loader = new GLTFLoader();
    this.content = null;
    this.placed = false;
    new ResizeObserver(() => this.resize()).observe(canvas.parentElement);
    this.resize();
  }

  resize() {
    const box = this.renderer.domElement.parentElement.getBoundingClientRect();
    const width = Math.max(1, Math.floor(box.width));
    const height = Math.max(1, Math.floor(box.height));
    this.renderer.setSize(width, height, false);
    this.camera.aspect = width / height;
    this.camera.updateProjectionMatrix();
    this.render();
  }

  render() {
    this.renderer.render(this.scene, this.camera);
  }

  // Shows a .glb; returns its counts of nodes and triangles.  The first
  // picture of a scene takes the scene's camera, else a fitted view.
  async show(bytes) {
    const gltf = await this.loader.parseAsync(bytes.buffer.slice(bytes.byteOffset, bytes.byteOffset + bytes.byteLength), '');
    if (this.content) {
      this.scene.remove(this.content);
      this.content.traverse((o) => {
        if (o.geometry) o.geometry.dispose();
        if (o.material) [].concat(o.material).forEach((m) => m.dispose());
      });
    }
    // A translation that made nothing has no scene.
    this.content = gltf.scene || new THREE.Group();
    this.scene.add(this.content);
    let lights = 0;
    let triangles = 0;
    this.content.traverse((o) => {
      if (o.isLight) lights += 1;
      if (o.isMesh && o.geometry) {
        const g = o.geometry;
        triangles += (g.index ? g.index.count : g.attributes.position.count) / 3;
      }
    });
    this.defaultLights.visible = lights === 0;
    this.sun.visible = lights === 0;
    const nodes = (gltf.parser.json.nodes || []).length;
    this.sceneCamera = gltf.cameras && gltf.cameras.length > 0 ? gltf.cameras[0] : null;
    if (!this.placed) {
      this.placed = true;
      if (this.sceneCamera) this.useSceneCamera(); else this.fit();
    }
    this.render();
    return { nodes, triangles: Math.round(triangles), box: this.bounds() };
  }

  bounds() {
    const box = new THREE.Box3();
    if (this.content) box.setFromObject(this.content);
    return box.isEmpty() ? null : { min: box.min.toArray(), max: box.max.toArray() };
  }

  // The next picture places the camera again (a new scene).
  forget() {
    this.placed = false;
  }

  useSceneCamera() {
    const c = this.sceneCamera;
    if (!c) return this.fit();
    c.updateWorldMatrix(true, false);
    const position = new THREE.Vector3();
    const direction = new THREE.Vector3();
    c.getWorldPosition(position);
    c.getWorldDirection(direction);
    this.camera.position.copy(position);
    const box = new THREE.Box3().setFromObject(this.content);
    const distance = box.isEmpty() ? 5 : Math.max(0.1, box.getCenter(new THREE.Vector3()).sub(position).dot(direction));
    this.controls.target.copy(position).addScaledVector(direction, distance);
    if (c.isPerspectiveCamera) this.camera.fov = c.fov;
    this.camera.updateProjectionMatrix();
    this.controls.update();
    this.render();
  }

  fit() {
    const box = new THREE.Box3();
    if (this.content) box.setFromObject(this.content);
    if (box.isEmpty()) box.set(new THREE.Vector3(-1, -1, -1), new THREE.Vector3(1, 1, 1));
    const center = box.getCenter(new THREE.Vector3());
    const radius = Math.max(box.getSize(new THREE.Vector3()).length() / 2, 1e-3);
    const distance = radius / Math.sin((this.camera.fov * Math.PI) / 360);
    const direction = new THREE.Vector3(0.6, 0.5, 1).normalize();
    this.camera.position.copy(center).addScaledVector(direction, distance);
    this.camera.near = distance / 100;
    this.camera.far = distance * 100;
    this.camera.updateProjectionMatrix();
    this.controls.target.copy(center);
    this.controls.update();
    const size = Math.max(2, Math.ceil(radius * 2));
    this.grid.scale.setScalar(size / 10);
    this.axes.scale.setScalar(size / 4);
    this.render();
  }

  setHelpers(grid, axes) {
    this.grid.visible = grid;
    this.axes.visible = axes;
    this.render();
  }
}
